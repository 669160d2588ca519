#pragma once

#include "settings_ui/VORNTextField.h"

namespace ComQuorvantVelmar_Plugin {

/// A text field with hidden input (passwords). It keeps every rule of VORNTextField except
/// the page-list check while typing and the decimal-comma form of numbers.
class VORNSecureTextField : public VORNTextField {
public:
    bool isSecure() const override { return true; }

protected:
    bool checksPageLists() const override { return false; }
    bool usesDecimalCommaForm() const override { return false; }
};

}  // namespace ComQuorvantVelmar_Plugin
