#pragma once

#include <QTreeWidget>

#include <memory>
#include <vector>

#include "settings_ui/DataSource.h"

namespace ComQuorvantVelmar_Plugin {

class TabViewItem;
class TabViewNode;

/// The tree of panes beside the tabless pages of the detailed settings window: one item
/// per pane, the pages of a pane's own tabs below it, as the engine's navigation tree of
/// the tab container answers them. Choosing an item selects its page and the tabs around
/// it; the window then shows that page.
class PaneNavigationTree : public QTreeWidget {
    Q_OBJECT
public:
    explicit PaneNavigationTree(QWidget* parent = nullptr);

    /// Shows the navigation tree of tabs anew (nothing for nullptr).
    void reload(std::shared_ptr<TabViewNode> tabs);
    /// Marks the item of the selected pane, unless an item below it is marked already.
    void showSelection();

signals:
    /// The user chose an item; its page is selected.
    void pageChosen();

private:
    void addChildren(QTreeWidgetItem* parent, const std::shared_ptr<TabViewItem>& item, int depth);
    QTreeWidgetItem* makeItem(const std::shared_ptr<TabViewItem>& item);
    void chosen(QTreeWidgetItem* item);

    DataSource _source;
    std::shared_ptr<TabViewNode> _tabs;
    std::vector<std::shared_ptr<TabViewItem>> _items;
};

}  // namespace ComQuorvantVelmar_Plugin
