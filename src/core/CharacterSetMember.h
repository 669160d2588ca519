#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "core/CharacterSet.h"

namespace ComQuorvantVelmar_Plugin {

/// Adds an allowed character set to a formatter of either family: a text with a
/// character outside the set is refused as well.
template <class Family>
class CharacterSetMember : public Family {
public:
    /// initWith...:max:characterSet: — the family's limits and the allowed characters.
    CharacterSetMember(std::uint32_t minimum, std::uint32_t maximum, CharacterSet characterSet)
        : Family(minimum, maximum), _characterSet(std::move(characterSet)) {}

    /// The characters that may be typed.
    const CharacterSet& characterSet() const { return _characterSet; }

    /// Whether text holds a control character (unless enabled) or one outside the set.
    bool containNotAllowedCharactor(std::string_view text) const override {
        return Family::containNotAllowedCharactor(text) || _characterSet.hasCharacterOutside(text);
    }

private:
    CharacterSet _characterSet;
};

}  // namespace ComQuorvantVelmar_Plugin
