#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "panes/PlainControl.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain matrix of radio cells in rows and columns. Like a radio group, it has one
/// selected cell: selecting a cell turns every other cell off.
class PlainRadioMatrix : public PlainControl {
public:
    struct Cell {
        std::string title;
        PlistValue representedObject;
        bool on = false;
    };

    std::string className() const override { return "Matrix"; }

    /// Appends a row of cells.
    void addRow(std::vector<Cell> cells);
    std::size_t numberOfRows() const { return _rows.size(); }
    /// Number of cells of row, 0 when out of range.
    std::size_t numberOfColumns(std::size_t row) const;
    /// The cell at row and column, or nullptr.
    const Cell* cellAt(std::size_t row, std::size_t column) const;
    /// Makes the cell at row and column the selected one; out of range changes nothing.
    void selectCellAt(std::size_t row, std::size_t column);
    /// The selected cell, or nullptr.
    const Cell* selectedCell() const;

private:
    std::vector<std::vector<Cell>> _rows;
};

}  // namespace ComQuorvantVelmar_Plugin
