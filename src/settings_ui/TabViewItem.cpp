#include "settings_ui/TabViewItem.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* hiddenMainIdentifier = "parent_main";
constexpr const char* splitTabIdentifier = "TabNotSupport";

}  // namespace

void TabViewItem::setTabViewItem(const std::string& label, std::shared_ptr<TabViewNode> tabView) {
    _titleName = label;
    _tabView = std::move(tabView);
}

bool TabViewItem::isLeafNode() {
    if (_isLeafNode) return true;
    const auto& list = children();
    return !list || list->empty();
}

const std::optional<std::vector<std::shared_ptr<TabViewItem>>>& TabViewItem::children() {
    if (_childrenMade || !_tabView) return _children;
    _childrenMade = true;
    const int remembered = _tabView->selectedIndex();
    const Selection saved = tabBackup();
    selectme();
    if (auto nested = nestedTabViewOfSelectedTab()) {
        nested->setTabless(true);
        _children = makeChildren(nested);
    }
    tabRestore(saved);
    _tabView->selectTabAtIndex(remembered);
    return _children;
}

void TabViewItem::selectme() {
    if (auto enclosing = parent()) enclosing->selectme();
    if (!_tabView) return;
    _tabView->selectTabWithLabel(_titleName);
    if (_index > 0)
        if (auto nested = nestedTabViewOfSelectedTab()) nested->selectTabAtIndex(_index - 1);
}

std::shared_ptr<TabViewItem> TabViewItem::copy() const {
    auto twin = std::make_shared<TabViewItem>();
    twin->_titleName = _titleName;
    twin->_subTitleName = _subTitleName;
    twin->_parent = _parent;
    twin->_childMain = _childMain;
    twin->_tabView = _tabView;
    twin->_index = _index;
    twin->_isHidden = _isHidden;
    twin->_isLeafNode = _isLeafNode;
    return twin;
}

// The selections of this node's tab container and of every enclosing one.
TabViewItem::Selection TabViewItem::tabBackup() const {
    Selection saved;
    saved.reserve(3);
    for (const TabViewItem* node = this; node; node = node->parent().get())
        if (node->_tabView) saved.emplace_back(node->_tabView, node->_tabView->selectedIndex());
    return saved;
}

void TabViewItem::tabRestore(const Selection& saved) {
    for (const auto& [tabView, index] : saved) tabView->selectTabAtIndex(index);
}

// The nested container is the first tab container on the selected page that draws a
// focus ring; containers without one are decorative groups, not navigation.
std::shared_ptr<TabViewNode> TabViewItem::nestedTabViewOfSelectedTab() const {
    const TabEntry* tab = _tabView ? _tabView->selectedTab() : nullptr;
    if (!tab || !tab->view) return nullptr;
    for (const auto& view : tab->view->subviews()) {
        auto nested = std::dynamic_pointer_cast<TabViewNode>(view);
        if (nested && nested->focusRingType() != TabViewNode::FocusRing::None) return nested;
    }
    return nullptr;
}

std::vector<std::shared_ptr<TabViewItem>> TabViewItem::makeChildren(const std::shared_ptr<TabViewNode>& nested) {
    std::vector<std::shared_ptr<TabViewItem>> list;
    for (const TabEntry& entry : nested->tabs()) {
        auto node = makeChild(entry, nested);
        if (entry.identifier == hiddenMainIdentifier) {
            node->_isHidden = true;
            _childMain = node;
        } else if (entry.identifier == splitTabIdentifier) {
            appendSplitCopies(node, list);
        } else {
            list.push_back(node);
        }
    }
    return list;
}

std::shared_ptr<TabViewItem> TabViewItem::makeChild(const TabEntry& entry, const std::shared_ptr<TabViewNode>& nested) {
    auto node = std::make_shared<TabViewItem>();
    node->setTabViewItem(entry.label, nested);
    node->_parent = weak_from_this();
    return node;
}

// A tab that cannot show its own nested tabs is listed as one leaf per nested page.
void TabViewItem::appendSplitCopies(const std::shared_ptr<TabViewItem>& node,
                                    std::vector<std::shared_ptr<TabViewItem>>& list) {
    const auto& pages = node->children();
    if (!pages) return;
    int position = 0;
    for (const auto& page : *pages) {
        auto leaf = node->copy();
        leaf->_index = ++position;
        leaf->_subTitleName = page->titleName();
        leaf->_isLeafNode = true;
        list.push_back(leaf);
    }
}

}  // namespace ComQuorvantVelmar_Plugin
