#pragma once

#include "core/EscapeMember.h"
#include "core/MaxBytesFormatterWithCharacterSet.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxBytesFormatterWithCharacterSet whose value is the escaped text.
class MaxBytesFormatterWithEscapeAndCharacterSet
    : public EscapeMember<MaxBytesFormatterWithCharacterSet> {
public:
    using EscapeMember::EscapeMember;
};

}  // namespace ComQuorvantVelmar_Plugin
