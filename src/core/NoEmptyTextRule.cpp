#include "core/NoEmptyTextRule.h"

#include <cctype>

namespace ComQuorvantVelmar_Plugin {

bool NoEmptyTextRule::isBlank(std::string_view text) {
    for (const char character : text)
        if (!std::isspace(static_cast<unsigned char>(character))) return false;
    return true;
}

// A field that was blank before the edit has nothing better to come back to.
NoEmptyTextRule::Outcome NoEmptyTextRule::endEditing(std::string_view text) const {
    if (!isBlank(text) || isBlank(_textBeforeEditing)) return {std::string(text), false};
    return {_textBeforeEditing, true};
}

}  // namespace ComQuorvantVelmar_Plugin
