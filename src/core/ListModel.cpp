#include "core/ListModel.h"

namespace ComQuorvantVelmar_Plugin {

void ListModel::setRows(std::vector<std::string> rows) {
    _rows = std::move(rows);
    if (_selectedRow >= numberOfRows()) _selectedRow = -1;
}

void ListModel::selectRow(std::int64_t index) { _selectedRow = index >= 0 && index < numberOfRows() ? index : -1; }

}  // namespace ComQuorvantVelmar_Plugin
