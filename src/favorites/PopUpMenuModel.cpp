#include "favorites/PopUpMenuModel.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

void PopUpMenuModel::removeAllItems() {
    _items.clear();
    _selectedIndex = -1;
}

void PopUpMenuModel::addItem(std::string title, std::string representedObject, std::string iconName) {
    _items.push_back({std::move(title), std::move(representedObject), std::move(iconName), false});
}

void PopUpMenuModel::addSeparator() { _items.push_back({{}, {}, {}, true}); }

void PopUpMenuModel::insertItem(PopUpMenuItem item, std::int64_t index) {
    index = std::clamp<std::int64_t>(index, 0, numberOfItems());
    _items.insert(_items.begin() + index, std::move(item));
    // The selection stays on the same item.
    if (_selectedIndex >= index) ++_selectedIndex;
}

void PopUpMenuModel::removeItemAtIndex(std::int64_t index) {
    if (index < 0 || index >= numberOfItems()) return;
    _items.erase(_items.begin() + index);
    if (_selectedIndex == index)
        _selectedIndex = -1;
    else if (_selectedIndex > index)
        --_selectedIndex;
}

const PopUpMenuItem* PopUpMenuModel::itemAtIndex(std::int64_t index) const {
    return index >= 0 && index < numberOfItems() ? &_items[static_cast<std::size_t>(index)] : nullptr;
}

void PopUpMenuModel::selectItemAtIndex(std::int64_t index) {
    _selectedIndex = index >= 0 && index < numberOfItems() ? index : -1;
}

std::int64_t PopUpMenuModel::indexOfItemWithTitle(std::string_view title) const {
    auto found = std::find_if(_items.begin(), _items.end(), [&](const PopUpMenuItem& item) {
        return !item.isSeparator && item.title == title;
    });
    return found == _items.end() ? notFound : found - _items.begin();
}

std::int64_t PopUpMenuModel::indexOfItemWithRepresentedObject(std::string_view representedObject) const {
    auto found = std::find_if(_items.begin(), _items.end(), [&](const PopUpMenuItem& item) {
        return !item.isSeparator && item.representedObject == representedObject;
    });
    return found == _items.end() ? notFound : found - _items.begin();
}

}  // namespace ComQuorvantVelmar_Plugin
