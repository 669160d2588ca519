#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// One entry of a pop-up menu: a title, the value it stands for, an icon, or a separator.
struct PopUpMenuItem {
    std::string title;
    /// The value the item stands for (a favorite's path, "" for the defaults).
    std::string representedObject;
    /// A freedesktop icon theme name or a resource name of the bundle, drawn at 16 x 16
    /// points; "" for none.
    std::string iconName;
    bool isSeparator = false;

    bool operator==(const PopUpMenuItem&) const = default;
};

/// The content and selection of a pop-up menu, kept by the engine and drawn by the view layer.
class PopUpMenuModel {
public:
    /// The index answered when nothing matches (the largest signed 64-bit value).
    static constexpr std::int64_t notFound = INT64_MAX;

    void removeAllItems();
    void addItem(std::string title, std::string representedObject, std::string iconName);
    void addSeparator();
    /// Inserts item before index (at the end when index is past it).
    void insertItem(PopUpMenuItem item, std::int64_t index);
    /// Removes the item at index; nothing happens for an index out of range.
    void removeItemAtIndex(std::int64_t index);

    std::int64_t numberOfItems() const { return static_cast<std::int64_t>(_items.size()); }
    const std::vector<PopUpMenuItem>& items() const { return _items; }
    /// The item at index, or nullptr out of range.
    const PopUpMenuItem* itemAtIndex(std::int64_t index) const;

    /// Selects the item at index; -1 or an index out of range selects nothing.
    void selectItemAtIndex(std::int64_t index);
    /// The selected index, or -1 when nothing is selected.
    std::int64_t indexOfSelectedItem() const { return _selectedIndex; }
    /// The first item (not a separator) with title, or notFound.
    std::int64_t indexOfItemWithTitle(std::string_view title) const;
    /// The first item (not a separator) standing for representedObject, or notFound.
    std::int64_t indexOfItemWithRepresentedObject(std::string_view representedObject) const;

private:
    std::vector<PopUpMenuItem> _items;
    std::int64_t _selectedIndex = -1;
};

}  // namespace ComQuorvantVelmar_Plugin
