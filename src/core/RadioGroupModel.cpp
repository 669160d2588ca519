#include "core/RadioGroupModel.h"

namespace ComQuorvantVelmar_Plugin {

void RadioGroupModel::addRow(Row row) { _rows.push_back(std::move(row)); }

RadioGroupModel::Row* RadioGroupModel::rowAtIndex(std::int64_t index) {
    return index >= 0 && index < numberOfRows() ? &_rows[static_cast<std::size_t>(index)] : nullptr;
}

const RadioGroupModel::Row* RadioGroupModel::rowAtIndex(std::int64_t index) const {
    return index >= 0 && index < numberOfRows() ? &_rows[static_cast<std::size_t>(index)] : nullptr;
}

void RadioGroupModel::selectRow(std::int64_t index) { _selectedRow = rowAtIndex(index) ? index : -1; }

bool RadioGroupModel::selectRowWithRepresentedObject(std::string_view representedObject) {
    for (std::int64_t index = 0; index < numberOfRows(); ++index) {
        if (_rows[static_cast<std::size_t>(index)].representedObject == representedObject) {
            _selectedRow = index;
            return true;
        }
    }
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin
