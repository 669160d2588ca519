#include "qt/OutlineItemModel.h"

#include <QApplication>
#include <QPalette>

#include "core/OutlineViewModel.h"
#include "qt/QtIcons.h"

namespace ComQuorvantVelmar_Plugin {

OutlineItemModel::OutlineItemModel(OutlineViewModel& outline, QObject* parent)
    : QAbstractItemModel(parent), _outline(outline), _shownReload(outline.reloadCount()) {}

bool OutlineItemModel::resetIfReloaded() {
    if (isCurrent()) return false;
    beginResetModel();
    _placeOfItem.clear();
    _cellOfItem.clear();
    _shownReload = _outline.reloadCount();
    endResetModel();
    return true;
}

bool OutlineItemModel::isCurrent() const { return _shownReload == _outline.reloadCount(); }

OutlineDataSource* OutlineItemModel::dataSource() const { return isCurrent() ? _outline.dataSource() : nullptr; }

OutlineItem OutlineItemModel::itemForIndex(const QModelIndex& index) const {
    if (!index.isValid() || !isCurrent()) return nullptr;
    return static_cast<OutlineItem>(index.internalPointer());
}

QModelIndex OutlineItemModel::indexForItem(OutlineItem item) const {
    const auto place = _placeOfItem.find(item);
    if (!item || !isCurrent() || place == _placeOfItem.end()) return {};
    return createIndex(place->second.second, 0, item);
}

OutlineCell OutlineItemModel::cellForItem(OutlineItem item) const {
    OutlineDataSource* source = dataSource();
    if (!source || !item) return {};
    const auto known = _cellOfItem.find(item);
    if (known != _cellOfItem.end()) return known->second;
    return _cellOfItem[item] = source->objectValueForItem(item);
}

QModelIndex OutlineItemModel::index(int row, int column, const QModelIndex& parent) const {
    OutlineDataSource* source = dataSource();
    if (!source || row < 0 || column != 0 || (parent.isValid() && !itemForIndex(parent))) return {};
    const OutlineItem parentItem = itemForIndex(parent);
    const OutlineItem item = source->child(static_cast<std::size_t>(row), parentItem);
    if (!item) return {};
    _placeOfItem[item] = {parentItem, row};
    return createIndex(row, 0, item);
}

QModelIndex OutlineItemModel::parent(const QModelIndex& child) const {
    const auto place = _placeOfItem.find(itemForIndex(child));
    if (place == _placeOfItem.end()) return {};
    return indexForItem(place->second.first);
}

int OutlineItemModel::rowCount(const QModelIndex& parent) const {
    OutlineDataSource* source = dataSource();
    if (!source || (parent.isValid() && (parent.column() != 0 || !itemForIndex(parent)))) return 0;
    return static_cast<int>(source->numberOfChildrenOfItem(itemForIndex(parent)));
}

int OutlineItemModel::columnCount(const QModelIndex&) const { return 1; }

bool OutlineItemModel::hasChildren(const QModelIndex& parent) const {
    OutlineDataSource* source = dataSource();
    if (!source) return false;
    if (!parent.isValid()) return source->numberOfChildrenOfItem(nullptr) > 0;
    const OutlineItem item = itemForIndex(parent);
    return item && source->isItemExpandable(item);
}

QVariant OutlineItemModel::data(const QModelIndex& index, int role) const {
    const OutlineItem item = itemForIndex(index);
    if (!item) return {};
    switch (role) {
        case Qt::DisplayRole: return QString::fromStdString(cellForItem(item).label);
        case Qt::DecorationRole: return QtIcons::fromThemeName(cellForItem(item).iconName);
        case Qt::ForegroundRole:
            if (!cellForItem(item).grayed) return {};
            return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        default: return {};
    }
}

// Every item may be clicked; whether the click selects it is the control's decision.
Qt::ItemFlags OutlineItemModel::flags(const QModelIndex& index) const {
    if (!itemForIndex(index)) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace ComQuorvantVelmar_Plugin
