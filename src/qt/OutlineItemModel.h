#pragma once

#include <QAbstractItemModel>

#include <cstdint>
#include <map>

#include "core/OutlineDataSource.h"

namespace ComQuorvantVelmar_Plugin {

class OutlineViewModel;

/// Hands the items of an engine tree control to a Qt view: each index stands for one item
/// of the control's data source, showing the cell the data source gives (label, gray label,
/// icon by theme name). Items live until the control reloads; from then on every old index
/// answers nothing until the model is reset, so a view never reaches an item that is gone.
class OutlineItemModel : public QAbstractItemModel {
    Q_OBJECT
public:
    /// Shows the items of outline (which must outlive the model).
    explicit OutlineItemModel(OutlineViewModel& outline, QObject* parent = nullptr);

    /// Resets the model when the control reloaded since the last look; true when it did.
    bool resetIfReloaded();
    /// The item of index; nullptr for the root or an index from before the last reload.
    OutlineItem itemForIndex(const QModelIndex& index) const;
    /// The index of a shown item; an invalid index for the root or an unknown item.
    QModelIndex indexForItem(OutlineItem item) const;
    /// The cell the data source gives item, asked once per item until the next reload.
    OutlineCell cellForItem(OutlineItem item) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool isCurrent() const;
    OutlineDataSource* dataSource() const;

    OutlineViewModel& _outline;
    std::uint64_t _shownReload;
    // Every item handed out, with its parent and row: the data source knows only children.
    mutable std::map<OutlineItem, std::pair<OutlineItem, int>> _placeOfItem;
    mutable std::map<OutlineItem, OutlineCell> _cellOfItem;
};

}  // namespace ComQuorvantVelmar_Plugin
