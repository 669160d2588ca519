#include "qt/SliderControlWidget.h"

#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "qt/ControlParts_p.h"
#include "qt/SliderTickLabelsWidget.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// A slider between any two numbers moves in hundredths of its unit; Qt's slider counts in
// whole steps.
constexpr double continuousScale = 100;
constexpr int minimumSliderWidth = 160;

}  // namespace

SliderControlWidget::SliderControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* row = new QWidget(this);
    buildSliderRow(row);
    layout->addWidget(row);
    buildTickLabels();
}

void SliderControlWidget::buildSliderRow(QWidget* row) {
    const VORNUI::SliderState& state = control().slider();
    _scale = state.allowsTickMarkValuesOnly ? 1 : continuousScale;
    QHBoxLayout* parts = ControlParts::rowLayout(row);
    ControlParts::addLeadingParts(parts, control(), row);
    ControlParts::addPart(parts, ControlParts::iconLabel(control().icons().sliderMin, row));
    ControlParts::addPart(parts, ControlParts::label(control().texts().minIconText, row));
    _slider = new QSlider(Qt::Horizontal, row);
    _slider->setMinimumWidth(minimumSliderWidth);
    _slider->setRange(static_cast<int>(std::lround(state.minValue * _scale)),
                      static_cast<int>(std::lround(state.maxValue * _scale)));
    _slider->setPageStep(static_cast<int>(_scale));
    if (state.numberOfTickMarks > 1) {
        _slider->setTickPosition(QSlider::TicksBelow);
        _slider->setTickInterval(std::max(1, (_slider->maximum() - _slider->minimum()) / (state.numberOfTickMarks - 1)));
    }
    parts->addWidget(_slider, 1);
    ControlParts::addPart(parts, ControlParts::label(control().texts().maxIconText, row));
    ControlParts::addPart(parts, ControlParts::iconLabel(control().icons().sliderMax, row));
    ControlParts::addPart(parts, ControlParts::label(control().texts().descText, row));
    // A drag reaches the control once, when the handle is let go.
    connect(_slider, &QSlider::valueChanged, this, [this] {
        if (!_slider->isSliderDown()) forwardPosition();
    });
    connect(_slider, &QSlider::sliderReleased, this, [this] { forwardPosition(); });
}

// An end tick whose label the end label beside the slider already shows stays unlabelled.
void SliderControlWidget::buildTickLabels() {
    QStringList labels;
    for (const std::string& label : control().slider().tickLabels) labels.append(ControlParts::text(label));
    if (!labels.isEmpty() && labels.front() == ControlParts::text(control().texts().minIconText)) labels.front().clear();
    if (!labels.isEmpty() && labels.back() == ControlParts::text(control().texts().maxIconText)) labels.back().clear();
    if (std::all_of(labels.begin(), labels.end(), [](const QString& label) { return label.isEmpty(); })) return;
    _tickLabels = new SliderTickLabelsWidget(_slider, labels, this);
    layout()->addWidget(_tickLabels);
}

void SliderControlWidget::forwardPosition() {
    control().setSliderPosition(_slider->value() / _scale);
    control().sliderAction();
}

void SliderControlWidget::showChange(VORNUIChange change) {
    if (change != VORNUIChange::Built && change != VORNUIChange::Value) return;
    const QSignalBlocker blocker(_slider);
    _slider->setValue(static_cast<int>(std::lround(control().slider().position * _scale)));
}

}  // namespace ComQuorvantVelmar_Plugin
