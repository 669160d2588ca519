#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin {

/// A label, heading or push button of a dialog: the localised title it shows and whether
/// it is enabled (a disabled label is drawn in gray).
class TitledControl {
public:
    const std::string& title() const { return _title; }
    void setTitle(std::string title) { _title = std::move(title); }
    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }

private:
    std::string _title;
    bool _enabled = true;
};

}  // namespace ComQuorvantVelmar_Plugin
