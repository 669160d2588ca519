#pragma once

#include "core/EscapeMember.h"
#include "core/MaxLengthFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxLengthFormatter whose value is the escaped text.
class MaxLengthFormatterWithEscape : public EscapeMember<MaxLengthFormatter> {
public:
    using EscapeMember::EscapeMember;
};

}  // namespace ComQuorvantVelmar_Plugin
