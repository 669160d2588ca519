#include "qt/ListModelWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "core/ListModel.h"

namespace ComQuorvantVelmar_Plugin {

ListModelWidget::ListModelWidget(const ListModel& list, QWidget* parent) : QListWidget(parent), _list(list) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    refresh();
}

void ListModelWidget::refresh() {
    const auto& rows = _list.rows();
    bool same = count() == static_cast<int>(rows.size());
    for (int row = 0; same && row < count(); ++row)
        same = item(row)->text() == QString::fromStdString(rows[static_cast<std::size_t>(row)]);
    if (!same) {
        clear();
        for (const std::string& row : rows) addItem(QString::fromStdString(row));
    }
    showSelection();
}

void ListModelWidget::showSelection() {
    const QSignalBlocker blocker(this);
    const int row = static_cast<int>(_list.selectedRow());
    if (row < 0) {
        clearSelection();
        setCurrentRow(-1);
        return;
    }
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    scrollToItem(item(row));
}

// The press only asks: the list selects nothing until the controller has agreed, and only
// the main button asks at all.
void ListModelWidget::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const int row = indexAt(event->position().toPoint()).row();
    if (event->button() == Qt::LeftButton && row >= 0 && row != _list.selectedRow()) emit rowClicked(row);
    event->accept();
}

// Dragging across the rows would select them one by one without asking.
void ListModelWidget::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) return event->accept();
    QListWidget::mouseMoveEvent(event);
}

// The keys move the current row as usual; the move is reported and then shown as the
// controller decided.
void ListModelWidget::keyPressEvent(QKeyEvent* event) {
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    const int after = currentRow();
    if (after == before || after < 0) return;
    showSelection();
    emit rowChosenWithKeyboard(after);
}

}  // namespace ComQuorvantVelmar_Plugin
