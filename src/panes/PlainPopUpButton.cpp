#include "panes/PlainPopUpButton.h"

namespace ComQuorvantVelmar_Plugin {

void PlainPopUpButton::addItem(Item item) {
    _items.push_back(std::move(item));
    if (_selectedIndex < 0 && !_items.back().isSeparator) _selectedIndex = static_cast<int>(_items.size()) - 1;
}

void PlainPopUpButton::addSeparator() {
    Item separator;
    separator.isSeparator = true;
    _items.push_back(std::move(separator));
}

PlainPopUpButton::Item* PlainPopUpButton::itemAtIndex(int index) {
    if (index < 0 || index >= static_cast<int>(_items.size())) return nullptr;
    return &_items[static_cast<std::size_t>(index)];
}

void PlainPopUpButton::removeAllItems() {
    _items.clear();
    _selectedIndex = -1;
}

const PlainPopUpButton::Item* PlainPopUpButton::selectedItem() const {
    if (_selectedIndex < 0) return nullptr;
    return &_items[static_cast<std::size_t>(_selectedIndex)];
}

void PlainPopUpButton::selectItemAtIndex(int index) {
    _selectedIndex = index >= 0 && index < static_cast<int>(_items.size()) ? index : -1;
}

}  // namespace ComQuorvantVelmar_Plugin
