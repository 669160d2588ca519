#pragma once

#include "core/EscapeMember.h"
#include "core/MaxBytesFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// A MaxBytesFormatter whose value is the escaped text.
class MaxBytesFormatterWithEscape : public EscapeMember<MaxBytesFormatter> {
public:
    using EscapeMember::EscapeMember;
};

}  // namespace ComQuorvantVelmar_Plugin
