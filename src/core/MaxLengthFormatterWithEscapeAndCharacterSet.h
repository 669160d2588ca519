#pragma once

#include "core/EscapeMember.h"
#include "core/MaxLengthFormatterWithCharacterSet.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxLengthFormatterWithCharacterSet whose value is the escaped text.
class MaxLengthFormatterWithEscapeAndCharacterSet
    : public EscapeMember<MaxLengthFormatterWithCharacterSet> {
public:
    using EscapeMember::EscapeMember;
};

}  // namespace ComQuorvantVelmar_Plugin
