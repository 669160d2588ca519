#include "qt/OutlineViewWidget.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

#include "core/OutlineViewModel.h"
#include "qt/OutlineItemModel.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Cells are drawn 16 by 16, as the control's icons are made.
constexpr int iconEdge = 16;
// Room around the icon and after the label inside the cell.
constexpr int cellPadding = 12;

}  // namespace

OutlineViewWidget::OutlineViewWidget(OutlineViewModel& outline, QWidget* parent)
    : QTreeView(parent), _outline(outline), _model(new OutlineItemModel(outline, this)) {
    setModel(_model);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
    setUniformRowHeights(true);
    setIconSize(QSize(iconEdge, iconEdge));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    _outline.setIndentationPerLevel(indentation());
    _outline.setLabelMeasure([metrics = fontMetrics()](const std::string& label) {
        return static_cast<double>(metrics.horizontalAdvance(QString::fromStdString(label)));
    });
    connect(this, &QTreeView::expanded, this, &OutlineViewWidget::expandedByUser);
    connect(this, &QTreeView::collapsed, this, &OutlineViewWidget::collapsedByUser);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &OutlineViewWidget::selectedByUser);
    refresh();
}

void OutlineViewWidget::refresh() {
    const QScopedValueRollback showing(_showing, true);
    _model->resetIfReloaded();
    showExpansion({});
    showSelection();
    showColumnWidth();
}

// Walks the shown rows only: an item inside a closed branch keeps whatever the control says
// until its branch opens.
void OutlineViewWidget::showExpansion(const QModelIndex& parent) {
    for (int row = 0; row < _model->rowCount(parent); ++row) {
        const QModelIndex index = _model->index(row, 0, parent);
        const OutlineItem item = _model->itemForIndex(index);
        _model->cellForItem(item);
        const bool open = _outline.isItemExpanded(item);
        if (isExpanded(index) != open) setExpanded(index, open);
        if (open) showExpansion(index);
    }
}

void OutlineViewWidget::showSelection() {
    const QModelIndex selected = _model->indexForItem(_outline.selectedItem());
    if (selected.isValid())
        selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clear();
}

// The control widens its column to its longest label with its indentation; the view adds
// the branch arrows of the top level and the icon, and never draws narrower than itself.
void OutlineViewWidget::showColumnWidth() {
    const int wanted = static_cast<int>(std::ceil(_outline.columnWidth())) + indentation() + iconEdge + cellPadding;
    header()->resizeSection(0, std::max(wanted, viewport()->width()));
}

void OutlineViewWidget::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    showColumnWidth();
}

void OutlineViewWidget::expandedByUser(const QModelIndex& index) {
    if (_showing) return;
    _outline.expandItem(_model->itemForIndex(index));
    refresh();
}

void OutlineViewWidget::collapsedByUser(const QModelIndex& index) {
    if (_showing) return;
    _outline.collapseItem(_model->itemForIndex(index), false);
    refresh();
}

void OutlineViewWidget::selectedByUser() {
    if (_showing) return;
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    const OutlineItem item = chosen.isEmpty() ? nullptr : _model->itemForIndex(chosen.front());
    if (item)
        _outline.selectItem(item);
    else
        _outline.deselectAll();
    refresh();
}

}  // namespace ComQuorvantVelmar_Plugin
