#pragma once

#include <cstdint>
#include <memory>

#include "core/CharacterSetMember.h"
#include "core/MaxBytesFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxBytesFormatter that also refuses characters outside its character set.
class MaxBytesFormatterWithCharacterSet : public CharacterSetMember<MaxBytesFormatter> {
public:
    using CharacterSetMember::CharacterSetMember;

    /// The formatter a field gets for at most maxBytes bytes of characterSet.
    static std::shared_ptr<MaxBytesFormatterWithCharacterSet> setMaxBytesFormatter(
        std::uint32_t maxBytes, const CharacterSet& characterSet) {
        return setMaxBytesFormatter(0, maxBytes, characterSet);
    }
    /// The formatter a field gets for minBytes to maxBytes bytes of characterSet.
    static std::shared_ptr<MaxBytesFormatterWithCharacterSet> setMaxBytesFormatter(
        std::uint32_t minBytes, std::uint32_t maxBytes, const CharacterSet& characterSet) {
        return std::make_shared<MaxBytesFormatterWithCharacterSet>(minBytes, maxBytes, characterSet);
    }
};

}  // namespace ComQuorvantVelmar_Plugin
