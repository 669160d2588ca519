#include "settings_ui/DataSource.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::weak_ptr<TabViewNode>& rememberedRoot() {
    static std::weak_ptr<TabViewNode> root;
    return root;
}

const std::vector<std::shared_ptr<TabViewItem>> noItems;

}  // namespace

void DataSource::locateRootTabView(const ViewNode& outlineView) {
    const ViewNode* enclosing = &outlineView;
    for (int level = 0; level < 3 && enclosing; ++level) enclosing = enclosing->superview();
    if (!enclosing) return;
    for (const auto& view : enclosing->subviews()) {
        if (auto tabView = std::dynamic_pointer_cast<TabViewNode>(view)) {
            setRootTabView(tabView);
            return;
        }
    }
}

void DataSource::setRootTabView(std::shared_ptr<TabViewNode> tabView) { rememberedRoot() = tabView; }

std::shared_ptr<TabViewNode> DataSource::rootTabView() { return rememberedRoot().lock(); }

const std::vector<std::shared_ptr<TabViewItem>>& DataSource::rootItems() {
    auto root = rootTabView();
    if (!root) return noItems;
    if (root != _rootItemsSource) {
        _rootItemsSource = root;
        _rootItems.clear();
        for (const TabEntry& entry : root->tabs()) {
            auto item = std::make_shared<TabViewItem>();
            item->setTabViewItem(entry.label, root);
            _rootItems.push_back(item);
        }
    }
    return _rootItems;
}

std::size_t DataSource::numberOfChildrenOfItem(const std::shared_ptr<TabViewItem>& item) {
    if (!item) {
        if (!_askedBefore) {
            _askedBefore = true;
            return 0;
        }
        return rootItems().size();
    }
    const auto& list = item->children();
    return list ? list->size() : 0;
}

std::shared_ptr<TabViewItem> DataSource::child(std::size_t index, const std::shared_ptr<TabViewItem>& item) {
    if (!item) {
        const auto& roots = rootItems();
        return index < roots.size() ? roots[index] : nullptr;
    }
    const auto& list = item->children();
    return list && index < list->size() ? (*list)[index] : nullptr;
}

bool DataSource::isItemExpandable(const std::shared_ptr<TabViewItem>& item) {
    return item && !item->isLeafNode();
}

std::string DataSource::objectValueForItem(const std::shared_ptr<TabViewItem>& item) {
    if (!item) return "item Unknown";
    return item->subTitleName().empty() ? item->titleName() : item->subTitleName();
}

}  // namespace ComQuorvantVelmar_Plugin
