#pragma once

#include <cstdint>
#include <memory>

#include "core/CharacterSetMember.h"
#include "core/MaxLengthFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxLengthFormatter that also refuses characters outside its character set.
class MaxLengthFormatterWithCharacterSet : public CharacterSetMember<MaxLengthFormatter> {
public:
    using CharacterSetMember::CharacterSetMember;

    /// The formatter a field gets for at most maxLength characters of characterSet.
    static std::shared_ptr<MaxLengthFormatterWithCharacterSet> setMaxLengthFormatter(
        std::uint32_t maxLength, const CharacterSet& characterSet) {
        return setMaxLengthFormatter(0, maxLength, characterSet);
    }
    /// The formatter a field gets for minLength to maxLength characters of characterSet.
    static std::shared_ptr<MaxLengthFormatterWithCharacterSet> setMaxLengthFormatter(
        std::uint32_t minLength, std::uint32_t maxLength, const CharacterSet& characterSet) {
        return std::make_shared<MaxLengthFormatterWithCharacterSet>(minLength, maxLength, characterSet);
    }
};

}  // namespace ComQuorvantVelmar_Plugin
