#include <algorithm>

#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

bool startsWith(const std::string& text, std::string_view prefix) { return text.rfind(prefix, 0) == 0; }

}  // namespace

double VORNUI::getControlHeight() const {
    const std::string type = controlClass();
    const bool hasTitle = !descriptionString("text").empty();
    const PlistValue* groupMain = descriptionValue("isGroupMain");
    // A member of a group (isGroupMain given and false) with a group title draws that
    // title on a row of its own.
    const bool ownGroupTitleRow = groupMain && !SettingsText::boolValue(groupMain) && descriptionValue("groupTitle");
    double height = 0;
    if (type == "CheckBox") {
        height = rowHeight * (_lineCount + (ownGroupTitleRow ? 1 : 0));
    } else if (startsWith(type, "TextField") || startsWith(type, "SecureTextField")) {
        height = (ownGroupTitleRow ? 2 * rowHeight : rowHeight) + (hasTitle ? rowHeight : 0);
    } else if (type == "PopupButton" || type == "Slider") {
        height = hasTitle ? 2 * rowHeight : rowHeight;
    } else if (type == "RadioButton") {
        height = 20.0 * static_cast<double>(getChoicesCount()) + (hasTitle ? rowHeight : 0);
    } else if (type == "DatePicker") {
        const PlistValue* title = descriptionValue("text");
        height = title && title->string() && title->string()->empty() ? 179 : 203;
    }
    const double blankLines = SettingsText::numericValue(descriptionString("blank_line_count"));
    if (blankLines != 0 && height != 0) height += rowHeight * blankLines;
    return height;
}

// Children stack in rows below the control; a child marked "holizontally" joins the row
// of the previous one, and a row's children share its width in equal columns.
void VORNUI::placeChildren() {
    std::vector<std::vector<VORNUI*>> rows;
    for (const auto& child : _childControls) {
        if (child->isPlacedHorizontally() && !rows.empty())
            rows.back().push_back(child.get());
        else
            rows.push_back({child.get()});
    }
    const double width = frame().width > 0 ? frame().width : defaultWidth;
    double offset = childStartOffset;
    for (const auto& row : rows) {
        const double columns = static_cast<double>(row.size());
        for (std::size_t column = 0; column < row.size(); ++column) {
            VORNUI* child = row[column];
            const double indent = indentStep * SettingsText::numericValue(child->descriptionString("indent_count"));
            const double x = static_cast<double>(column) * width / columns + indent;
            child->setFrame(ViewFrame{x, offset, std::max(0.0, width / columns - indent), child->maxHeight()});
        }
        offset += row.front()->getControlHeight() + (row.front()->controlClass() == "Slider" ? rowHeight : 0);
    }
    _maxHeight = std::max(getControlHeight(), offset);
}

}  // namespace ComQuorvantVelmar_Plugin
