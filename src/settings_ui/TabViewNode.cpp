#include "settings_ui/TabViewNode.h"

namespace ComQuorvantVelmar_Plugin {

void TabViewNode::addTab(TabEntry entry) {
    if (entry.view) addSubview(entry.view);
    _tabs.push_back(std::move(entry));
    if (_selectedIndex < 0) _selectedIndex = 0;
}

void TabViewNode::selectTabAtIndex(int index) {
    if (index >= 0 && index < static_cast<int>(_tabs.size())) _selectedIndex = index;
}

bool TabViewNode::selectTabWithLabel(const std::string& label) {
    for (std::size_t index = 0; index < _tabs.size(); ++index) {
        if (_tabs[index].label != label) continue;
        _selectedIndex = static_cast<int>(index);
        return true;
    }
    return false;
}

const TabEntry* TabViewNode::selectedTab() const {
    if (_selectedIndex < 0) return nullptr;
    return &_tabs[static_cast<std::size_t>(_selectedIndex)];
}

}  // namespace ComQuorvantVelmar_Plugin
