#pragma once

#include <QListWidget>

#include <cstdint>

namespace ComQuorvantVelmar_Plugin {

class ListModel;

/// A dialog's one-column list: shows the rows and the selected row of a list model and
/// reports the user's wish to select another row, by mouse or by keyboard, without
/// selecting it itself. The dialog's controller decides (a mouse selection may be refused)
/// and the dialog shows the outcome with refresh.
class ListModelWidget : public QListWidget {
    Q_OBJECT
public:
    /// Renders list (which must outlive the widget).
    explicit ListModelWidget(const ListModel& list, QWidget* parent = nullptr);

    /// Shows the list's rows and its selection.
    void refresh();

signals:
    /// The user clicked row, which is not the selected one.
    void rowClicked(std::int64_t row);
    /// The user moved the selection to row with the keyboard.
    void rowChosenWithKeyboard(std::int64_t row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showSelection();

    const ListModel& _list;
};

}  // namespace ComQuorvantVelmar_Plugin
