#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// A column of radio buttons with at most one selected: each row has a title, the value it
/// stands for and a tag. The view layer shows the rows and forwards the user's choice with
/// selectRow.
class RadioGroupModel {
public:
    struct Row {
        std::string title;
        std::string representedObject;
        int tag = 0;
    };

    /// Appends a row; nothing is selected by adding.
    void addRow(Row row);
    const std::vector<Row>& rows() const { return _rows; }
    std::int64_t numberOfRows() const { return static_cast<std::int64_t>(_rows.size()); }
    /// The row at index, or nullptr out of range.
    Row* rowAtIndex(std::int64_t index);
    const Row* rowAtIndex(std::int64_t index) const;

    /// Selects the row at index; an index out of range selects nothing.
    void selectRow(std::int64_t index);
    /// Selects the first row standing for representedObject; false (selection unchanged)
    /// when no row does.
    bool selectRowWithRepresentedObject(std::string_view representedObject);
    /// The selected row's index, or -1 when nothing is selected.
    std::int64_t selectedRow() const { return _selectedRow; }
    /// The selected row, or nullptr.
    const Row* selectedCell() const { return rowAtIndex(_selectedRow); }

    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }

private:
    std::vector<Row> _rows;
    std::int64_t _selectedRow = -1;
    bool _enabled = true;
};

}  // namespace ComQuorvantVelmar_Plugin
