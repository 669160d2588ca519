#include "core/OutlineViewModel.h"

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {

void OutlineViewModel::setDataSource(OutlineDataSource* dataSource) {
    _dataSource = dataSource;
    reloadData();
}

void OutlineViewModel::reloadData() {
    ++_reloadCount;
    _expanded.clear();
    _selected = nullptr;
}

void OutlineViewModel::expandItem(OutlineItem item) {
    if (!_dataSource || !item || levelForItem(item) < 0 || !_dataSource->isItemExpandable(item)) return;
    _expanded.insert(item);
}

void OutlineViewModel::collapseItem(OutlineItem item, bool collapseChildren) {
    if (!item) return;
    _expanded.erase(item);
    if (collapseChildren) _collapseBelow(item);
}

void OutlineViewModel::_collapseBelow(OutlineItem item) {
    if (!_dataSource) return;
    const std::size_t count = _dataSource->numberOfChildrenOfItem(item);
    for (std::size_t index = 0; index < count; ++index) {
        OutlineItem child = _dataSource->child(index, item);
        if (!child) continue;
        _expanded.erase(child);
        _collapseBelow(child);
    }
}

std::vector<OutlineViewModel::Row> OutlineViewModel::rows() const {
    std::vector<Row> rows;
    if (_dataSource) _appendRows(nullptr, 0, rows);
    return rows;
}

void OutlineViewModel::_appendRows(OutlineItem parent, std::int64_t level, std::vector<Row>& rows) const {
    const std::size_t count = _dataSource->numberOfChildrenOfItem(parent);
    for (std::size_t index = 0; index < count; ++index) {
        OutlineItem child = _dataSource->child(index, parent);
        if (!child) continue;
        rows.push_back({child, level});
        if (isItemExpanded(child)) _appendRows(child, level + 1, rows);
    }
}

std::int64_t OutlineViewModel::levelForItem(OutlineItem item) const {
    for (const Row& row : rows())
        if (row.item == item) return row.level;
    return -1;
}

bool OutlineViewModel::selectItem(OutlineItem item) {
    if (!_dataSource || levelForItem(item) < 0 || !_dataSource->shouldSelectItem(item)) return false;
    _selected = item;
    return true;
}

double OutlineViewModel::widthOfLabel(const std::string& label) const {
    if (_labelMeasure) return _labelMeasure(label);
    return 7.0 * static_cast<double>(TextCharacters::characterLength(label));
}

}  // namespace ComQuorvantVelmar_Plugin
