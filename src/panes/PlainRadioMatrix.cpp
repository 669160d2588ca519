#include "panes/PlainRadioMatrix.h"

namespace ComQuorvantVelmar_Plugin {

void PlainRadioMatrix::addRow(std::vector<Cell> cells) { _rows.push_back(std::move(cells)); }

std::size_t PlainRadioMatrix::numberOfColumns(std::size_t row) const {
    return row < _rows.size() ? _rows[row].size() : 0;
}

const PlainRadioMatrix::Cell* PlainRadioMatrix::cellAt(std::size_t row, std::size_t column) const {
    if (row >= _rows.size() || column >= _rows[row].size()) return nullptr;
    return &_rows[row][column];
}

void PlainRadioMatrix::selectCellAt(std::size_t row, std::size_t column) {
    if (!cellAt(row, column)) return;
    for (auto& cells : _rows)
        for (Cell& cell : cells) cell.on = false;
    _rows[row][column].on = true;
}

const PlainRadioMatrix::Cell* PlainRadioMatrix::selectedCell() const {
    for (const auto& cells : _rows)
        for (const Cell& cell : cells)
            if (cell.on) return &cell;
    return nullptr;
}

}  // namespace ComQuorvantVelmar_Plugin
