#pragma once

#include <string>

#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// A text label of the panel or a sheet; the view layer shows its text.
class PanelLabel : public ViewNode {
public:
    std::string className() const override { return "Label"; }

    const std::string& text() const { return _text; }
    void setText(std::string text) { _text = std::move(text); }

private:
    std::string _text;
};

}  // namespace ComQuorvantVelmar_Plugin
