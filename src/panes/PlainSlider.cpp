#include "panes/PlainSlider.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

void PlainSlider::setRange(double minValue, double maxValue) {
    _minValue = minValue;
    _maxValue = std::max(minValue, maxValue);
    setDoubleValue(_position);
}

void PlainSlider::setDoubleValue(double position) { _position = std::clamp(position, _minValue, _maxValue); }

}  // namespace ComQuorvantVelmar_Plugin
