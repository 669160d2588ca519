#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QString>

#include <string>

#include "settings_ui/VORNUI.h"

// Pieces every control view is made of: rows of the control's row height, labels and icons.

namespace ComQuorvantVelmar_Plugin::ControlParts {

/// Height of one row of a control, in pixels (one point is one pixel).
constexpr int rowHeight = 24;
/// Height of one cell of a vertical radio group.
constexpr int radioCellHeight = 20;
/// Edge length of icons inside a row.
constexpr int iconSize = 20;
/// Space between the parts of a row.
constexpr int partSpacing = 6;

inline QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

/// A row of parts laid out left to right on the row height.
inline QHBoxLayout* rowLayout(QWidget* row) {
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(partSpacing);
    row->setFixedHeight(rowHeight);
    return layout;
}

/// A plain label of the control (title, head text, unit, slider end); nullptr for "".
inline QLabel* label(const std::string& utf8, QWidget* parent) {
    if (utf8.empty()) return nullptr;
    auto* label = new QLabel(text(utf8), parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// The head text before a control, as wide as the description asks; nullptr for none.
inline QLabel* headLabel(const std::string& utf8, double width, QWidget* parent) {
    QLabel* head = label(utf8, parent);
    if (head && width > 0) head->setFixedWidth(static_cast<int>(width));
    return head;
}

/// An image of the control's bundle shown at icon size; nullptr when the file is missing.
QLabel* iconLabel(const std::string& path, QWidget* parent);
/// Puts the image at path into label, or hides the label when there is none.
void showIcon(QLabel* label, const std::string& path);

/// Starts the main row of control: its image and its head text, where it has them.
void addLeadingParts(QHBoxLayout* layout, const VORNUI& control, QWidget* row);

/// Adds widget to layout when it exists.
inline void addPart(QHBoxLayout* layout, QWidget* widget) {
    if (widget) layout->addWidget(widget);
}

}  // namespace ComQuorvantVelmar_Plugin::ControlParts
