#include "qt/StepperWidget.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int arrowWidth = 16;
constexpr int arrowHeight = 11;

QToolButton* arrowButton(Qt::ArrowType arrow, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFixedSize(arrowWidth, arrowHeight);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

}  // namespace

StepperWidget::StepperWidget(QWidget* parent)
    : QWidget(parent), _up(arrowButton(Qt::UpArrow, this)), _down(arrowButton(Qt::DownArrow, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(_up);
    layout->addWidget(_down);
    setFixedSize(arrowWidth, 2 * arrowHeight);
    connect(_up, &QToolButton::clicked, this, [this] { emit stepped(1); });
    connect(_down, &QToolButton::clicked, this, [this] { emit stepped(-1); });
}

}  // namespace ComQuorvantVelmar_Plugin
