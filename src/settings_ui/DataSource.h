#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings_ui/TabViewItem.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// Feeds an outline list with the navigation tree of the settings' tab pages. The root
/// items are the tabs of the tab container found next to the outline list; that container
/// is remembered for the whole process.
class DataSource {
public:
    /// Finds the root container for outlineView: the first tab container among the
    /// sub-views of the outline's third enclosing view. Nothing changes when there is none.
    static void locateRootTabView(const ViewNode& outlineView);
    /// Remembers tabView as the root container directly.
    static void setRootTabView(std::shared_ptr<TabViewNode> tabView);
    /// The remembered root container, or nullptr.
    static std::shared_ptr<TabViewNode> rootTabView();

    /// Number of children of item (the root items for nullptr). The very first question
    /// for the root answers 0: the outline asks before the panes have their pages.
    std::size_t numberOfChildrenOfItem(const std::shared_ptr<TabViewItem>& item);
    /// Child at index of item (a root item for nullptr); nullptr when out of range.
    std::shared_ptr<TabViewItem> child(std::size_t index, const std::shared_ptr<TabViewItem>& item);
    /// Whether item has children to expand.
    bool isItemExpandable(const std::shared_ptr<TabViewItem>& item);
    /// The shown text: subTitleName when present, else titleName; "item Unknown" for no item.
    static std::string objectValueForItem(const std::shared_ptr<TabViewItem>& item);

private:
    const std::vector<std::shared_ptr<TabViewItem>>& rootItems();

    std::vector<std::shared_ptr<TabViewItem>> _rootItems;
    std::shared_ptr<TabViewNode> _rootItemsSource;
    bool _askedBefore = false;
};

}  // namespace ComQuorvantVelmar_Plugin
