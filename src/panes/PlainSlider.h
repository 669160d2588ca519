#pragma once

#include "panes/PlainControl.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain slider with tick marks at whole positions from its minimum to its maximum.
class PlainSlider : public PlainControl {
public:
    std::string className() const override { return "Slider"; }

    double minValue() const { return _minValue; }
    double maxValue() const { return _maxValue; }
    /// Sets the range; the position is held within it.
    void setRange(double minValue, double maxValue);
    double doubleValue() const { return _position; }
    /// The position as a whole number, cut towards zero.
    int intValue() const { return static_cast<int>(_position); }
    /// Moves the knob to position, held within the range.
    void setDoubleValue(double position);

private:
    double _minValue = 0;
    double _maxValue = 0;
    double _position = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
