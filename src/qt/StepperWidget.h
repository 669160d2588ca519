#pragma once

#include <QWidget>

class QToolButton;

namespace ComQuorvantVelmar_Plugin {

/// The up and down arrows beside a number field. Holding an arrow repeats it.
class StepperWidget : public QWidget {
    Q_OBJECT
public:
    explicit StepperWidget(QWidget* parent = nullptr);

    QToolButton* upButton() const { return _up; }
    QToolButton* downButton() const { return _down; }

signals:
    /// An arrow was pressed: 1 up, -1 down.
    void stepped(int steps);

private:
    QToolButton* _up;
    QToolButton* _down;
};

}  // namespace ComQuorvantVelmar_Plugin
