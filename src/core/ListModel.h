#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// A one-column list of a dialog with at most one selected row. The controller that owns
/// it decides whether a selection change is allowed; the view layer shows the rows.
class ListModel {
public:
    /// Replaces the rows; the selection is kept while its index is still a row.
    void setRows(std::vector<std::string> rows);
    const std::vector<std::string>& rows() const { return _rows; }
    std::int64_t numberOfRows() const { return static_cast<std::int64_t>(_rows.size()); }

    /// Selects the row at index; an index out of range selects nothing.
    void selectRow(std::int64_t index);
    /// The selected row's index, or -1 when nothing is selected.
    std::int64_t selectedRow() const { return _selectedRow; }

private:
    std::vector<std::string> _rows;
    std::int64_t _selectedRow = -1;
};

}  // namespace ComQuorvantVelmar_Plugin
