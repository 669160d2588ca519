#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// One sheet size of the press: the paper size option keyword, the press's fixed type
/// number and the nominal height and width in cep (1/14400 inch, rounded up).
struct PaperSize {
    std::string_view name;
    int typeNum;
    std::int64_t height;
    std::int64_t width;

    /// The size named exactly name (case-sensitive), or nullptr.
    static const PaperSize* find(std::string_view name);
    /// Every known size, in the order names are looked up.
    static std::span<const PaperSize> all();

    /// The size record: "typeNum", "height", "width" as strings.
    PlistDictionary record() const;
};

}  // namespace ComQuorvantVelmar_Plugin
