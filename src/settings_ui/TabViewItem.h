#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "settings_ui/TabViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// One node of the navigation tree that presents nested tab pages as an outline list.
/// A node stands for one tab of a tab container; its children are the tabs of the tab
/// container nested in that tab's page.
class TabViewItem : public std::enable_shared_from_this<TabViewItem> {
public:
    /// Makes this node stand for the tab labelled label of tabView.
    void setTabViewItem(const std::string& label, std::shared_ptr<TabViewNode> tabView);

    const std::string& titleName() const { return _titleName; }
    /// Title of the child page this copy stands for; "" for plain nodes.
    const std::string& subTitleName() const { return _subTitleName; }
    /// The enclosing node, or nullptr for a root.
    std::shared_ptr<TabViewItem> parent() const { return _parent.lock(); }
    /// The hidden main page of the nested tabs, or nullptr.
    std::shared_ptr<TabViewItem> child_main() const { return _childMain; }
    /// The tab container that holds this node's tab.
    const std::shared_ptr<TabViewNode>& tabView() const { return _tabView; }
    /// 1-based position of the child page a copy stands for; 0 for plain nodes.
    int index() const { return _index; }
    bool isHidden() const { return _isHidden; }
    /// True when the node has no nested pages.
    bool isLeafNode();

    /// The child nodes, made once; nothing (the outline's -1) when the tab's page holds no
    /// nested tab container. Leaves every tab selection as it found it.
    const std::optional<std::vector<std::shared_ptr<TabViewItem>>>& children();
    /// Selects this node's tab, and first the tabs of all enclosing nodes.
    void selectme();
    /// A copy of the node with the same parent and tab; its children are made anew.
    std::shared_ptr<TabViewItem> copy() const;

private:
    using Selection = std::vector<std::pair<std::shared_ptr<TabViewNode>, int>>;

    Selection tabBackup() const;
    static void tabRestore(const Selection& saved);
    std::shared_ptr<TabViewNode> nestedTabViewOfSelectedTab() const;
    std::vector<std::shared_ptr<TabViewItem>> makeChildren(const std::shared_ptr<TabViewNode>& nested);
    std::shared_ptr<TabViewItem> makeChild(const TabEntry& entry, const std::shared_ptr<TabViewNode>& nested);
    void appendSplitCopies(const std::shared_ptr<TabViewItem>& node,
                           std::vector<std::shared_ptr<TabViewItem>>& list);

    std::string _titleName;
    std::string _subTitleName;
    std::weak_ptr<TabViewItem> _parent;
    std::optional<std::vector<std::shared_ptr<TabViewItem>>> _children;
    bool _childrenMade = false;
    std::shared_ptr<TabViewItem> _childMain;
    std::shared_ptr<TabViewNode> _tabView;
    int _index = 0;
    bool _isHidden = false;
    bool _isLeafNode = false;
};

}  // namespace ComQuorvantVelmar_Plugin
