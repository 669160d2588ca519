#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/OutlineDataSource.h"

namespace ComQuorvantVelmar_Plugin {

/// The state of a tree control that the engine drives and a toolkit draws: which items
/// are expanded, which one is selected and how wide the column is. Its items come from
/// its data source.
class OutlineViewModel {
public:
    /// One shown row: the item and its depth (0 for a top-level item).
    struct Row {
        OutlineItem item = nullptr;
        std::int64_t level = 0;
        bool operator==(const Row&) const = default;
    };

    /// Makes dataSource the source (and delegate) of the items, and reloads.
    void setDataSource(OutlineDataSource* dataSource);
    OutlineDataSource* dataSource() const { return _dataSource; }
    /// Asks the data source afresh: every item handed out before is forgotten, so nothing
    /// stays expanded or selected.
    void reloadData();
    /// How often the items were asked afresh: a view whose count differs holds items that
    /// are gone and must ask again.
    std::uint64_t reloadCount() const { return _reloadCount; }

    /// Expands item when it is shown (top-level, or the child of an expanded item) and has
    /// children; an item inside a closed branch stays as it is.
    void expandItem(OutlineItem item);
    /// Collapses item, and every item below it when collapseChildren.
    void collapseItem(OutlineItem item, bool collapseChildren);
    bool isItemExpanded(OutlineItem item) const { return _expanded.contains(item); }
    /// The shown rows from top to bottom.
    std::vector<Row> rows() const;
    /// The depth of a shown item; -1 when it is not shown.
    std::int64_t levelForItem(OutlineItem item) const;

    /// Selects item when it is shown and the data source allows it; false otherwise.
    bool selectItem(OutlineItem item);
    void deselectAll() { _selected = nullptr; }
    /// The selected item, or nullptr.
    OutlineItem selectedItem() const { return _selected; }

    double columnWidth() const { return _columnWidth; }
    void setColumnWidth(double width) { _columnWidth = width; }
    /// How far each level is indented, in points.
    double indentationPerLevel() const { return _indentationPerLevel; }
    void setIndentationPerLevel(double indentation) { _indentationPerLevel = indentation; }
    /// The width of label in the cell's font; the view layer gives the measure, which
    /// counts 7 points a character until then.
    double widthOfLabel(const std::string& label) const;
    void setLabelMeasure(std::function<double(const std::string&)> measure) { _labelMeasure = std::move(measure); }

private:
    void _appendRows(OutlineItem parent, std::int64_t level, std::vector<Row>& rows) const;
    void _collapseBelow(OutlineItem item);

    OutlineDataSource* _dataSource = nullptr;
    std::set<OutlineItem> _expanded;
    OutlineItem _selected = nullptr;
    std::uint64_t _reloadCount = 0;
    double _columnWidth = 0;
    double _indentationPerLevel = 16;
    std::function<double(const std::string&)> _labelMeasure;
};

}  // namespace ComQuorvantVelmar_Plugin
