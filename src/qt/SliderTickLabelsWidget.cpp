#include "qt/SliderTickLabelsWidget.h"

#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

SliderTickLabelsWidget::SliderTickLabelsWidget(QSlider* slider, QStringList labels, QWidget* parent)
    : QWidget(parent), _slider(slider), _labels(std::move(labels)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize SliderTickLabelsWidget::sizeHint() const { return {0, fontMetrics().height() + 2}; }

// The tick's place as the style draws it: the handle's centre at that value, in this
// widget's coordinates.
int SliderTickLabelsWidget::tickCentre(int tick) const {
    QStyleOptionSlider option;
    option.initFrom(_slider);
    option.orientation = Qt::Horizontal;
    option.minimum = _slider->minimum();
    option.maximum = _slider->maximum();
    option.sliderPosition = tick;
    option.sliderValue = tick;
    const QRect handle = _slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, _slider);
    return _slider->mapTo(parentWidget(), handle.center()).x() - x();
}

void SliderTickLabelsWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const int count = static_cast<int>(_labels.size());
    for (int index = 0; index < count && index <= _slider->maximum() - _slider->minimum(); ++index) {
        const QString& label = _labels[index];
        if (label.isEmpty()) continue;
        const int labelWidth = fontMetrics().horizontalAdvance(label);
        const int left = std::clamp(tickCentre(_slider->minimum() + index) - labelWidth / 2, 0,
                                    std::max(0, width() - labelWidth));
        painter.drawText(QRect(left, 0, labelWidth, height()), Qt::AlignCenter, label);
    }
}

}  // namespace ComQuorvantVelmar_Plugin
