#pragma once

#include "qt/ControlBodyWidget.h"

class QSlider;

namespace ComQuorvantVelmar_Plugin {

class SliderTickLabelsWidget;

/// A slider setting: the slider between its end icons and end labels, with its tick marks
/// and, below them, the label of each tick.
class SliderControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    SliderControlWidget(VORNUI& control, QWidget* parent);

    QSlider* slider() const { return _slider; }
    /// The labels under the ticks; nullptr when no tick has one.
    SliderTickLabelsWidget* tickLabels() const { return _tickLabels; }
    void showChange(VORNUIChange change) override;

private:
    void buildSliderRow(QWidget* row);
    void buildTickLabels();
    void forwardPosition();

    QSlider* _slider = nullptr;
    SliderTickLabelsWidget* _tickLabels = nullptr;
    double _scale = 1;
};

}  // namespace ComQuorvantVelmar_Plugin
