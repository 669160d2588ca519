#include "qt/PaneNavigationTree.h"

#include <QHeaderView>

#include "settings_ui/TabViewItem.h"
#include "settings_ui/TabViewNode.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Pages nested deeper than this are no layout a pane shows.
constexpr int deepestPage = 8;

}  // namespace

// The tree asks for its items once before the panes have pages, as an outline does when
// it is made; the navigation tree answers that first question with nothing.
PaneNavigationTree::PaneNavigationTree(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(1);
    header()->hide();
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformRowHeights(true);
    _source.numberOfChildrenOfItem(nullptr);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { chosen(item); });
}

void PaneNavigationTree::reload(std::shared_ptr<TabViewNode> tabs) {
    const QSignalBlocker blocker(this);
    clear();
    _items.clear();
    _tabs = std::move(tabs);
    DataSource::setRootTabView(_tabs);
    if (!_tabs) return;
    const std::size_t count = _source.numberOfChildrenOfItem(nullptr);
    for (std::size_t index = 0; index < count; ++index) {
        const auto item = _source.child(index, nullptr);
        if (!item) continue;
        QTreeWidgetItem* shown = makeItem(item);
        addTopLevelItem(shown);
        addChildren(shown, item, 1);
    }
    expandAll();
    showSelection();
}

QTreeWidgetItem* PaneNavigationTree::makeItem(const std::shared_ptr<TabViewItem>& item) {
    auto* shown = new QTreeWidgetItem(QStringList(QString::fromStdString(DataSource::objectValueForItem(item))));
    shown->setData(0, Qt::UserRole, static_cast<qulonglong>(_items.size()));
    _items.push_back(item);
    return shown;
}

void PaneNavigationTree::addChildren(QTreeWidgetItem* parent, const std::shared_ptr<TabViewItem>& item, int depth) {
    if (depth > deepestPage || !_source.isItemExpandable(item)) return;
    const std::size_t count = _source.numberOfChildrenOfItem(item);
    for (std::size_t index = 0; index < count; ++index) {
        const auto child = _source.child(index, item);
        if (!child || child->isHidden()) continue;
        QTreeWidgetItem* shown = makeItem(child);
        parent->addChild(shown);
        addChildren(shown, child, depth + 1);
    }
}

void PaneNavigationTree::showSelection() {
    if (!_tabs) return;
    QTreeWidgetItem* pane = topLevelItem(_tabs->selectedIndex());
    QTreeWidgetItem* marked = currentItem();
    while (marked && marked->parent()) marked = marked->parent();
    if (!pane || marked == pane) return;
    const QSignalBlocker blocker(this);
    setCurrentItem(pane);
}

void PaneNavigationTree::chosen(QTreeWidgetItem* item) {
    if (!item) return;
    const auto index = item->data(0, Qt::UserRole).toULongLong();
    if (index >= _items.size()) return;
    _items[index]->selectme();
    emit pageChosen();
}

}  // namespace ComQuorvantVelmar_Plugin
