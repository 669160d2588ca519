#pragma once

#include <string>
#include <vector>

#include "panes/PlainControl.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain pop-up button: a list of items, at most one of them selected. Each item
/// carries its own represented object ("optionKeyword" names the value it stands for).
class PlainPopUpButton : public PlainControl {
public:
    struct Item {
        std::string title;
        PlistDictionary representedObject;
        bool isSeparator = false;
        bool enabled = true;
    };

    std::string className() const override { return "PopUpButton"; }

    const std::vector<Item>& items() const { return _items; }
    /// Appends an item; the first item added becomes selected.
    void addItem(Item item);
    /// Appends a separator.
    void addSeparator();
    /// The item at index, or nullptr when out of range.
    Item* itemAtIndex(int index);
    void removeAllItems();
    /// Index of the selected item, -1 when none.
    int indexOfSelectedItem() const { return _selectedIndex; }
    /// The selected item, or nullptr.
    const Item* selectedItem() const;
    /// Selects the item at index; -1 or out of range selects nothing.
    void selectItemAtIndex(int index);

private:
    std::vector<Item> _items;
    int _selectedIndex = -1;
};

}  // namespace ComQuorvantVelmar_Plugin
