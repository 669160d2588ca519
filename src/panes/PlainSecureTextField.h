#pragma once

#include "panes/PlainTextField.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain text field whose text is hidden while typed (a password).
class PlainSecureTextField : public PlainTextField {
public:
    std::string className() const override { return "SecureTextField"; }
};

}  // namespace ComQuorvantVelmar_Plugin
