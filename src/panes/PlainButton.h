#pragma once

#include "panes/PlainControl.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain button with an on/off state: a check box.
class PlainButton : public PlainControl {
public:
    enum State : int { StateOff = 0, StateOn = 1 };

    std::string className() const override { return "Button"; }

    int state() const { return _state; }
    void setState(int state) { _state = state == StateOff ? StateOff : StateOn; }

private:
    int _state = StateOff;
};

}  // namespace ComQuorvantVelmar_Plugin
