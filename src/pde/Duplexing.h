#pragma once

#include <cstdint>
#include <optional>

namespace ComQuorvantVelmar_Plugin {

class PrintSettings;

/// The print system's duplex numbers (PMDuplexing) and their CUPS form, the option "sides".
/// Its fourth number, SimplexTumble, has no CUPS form.
namespace Duplexing {

constexpr std::int32_t None = 1;            // "one-sided"
constexpr std::int32_t DuplexNoTumble = 2;  // "two-sided-long-edge"
constexpr std::int32_t DuplexTumble = 3;    // "two-sided-short-edge"

/// The number that the print settings' "sides" stands for; nothing when "sides" is
/// absent, not a string or not one of the three CUPS values.
std::optional<std::int32_t> fromSides(const PrintSettings& settings);

}  // namespace Duplexing
}  // namespace ComQuorvantVelmar_Plugin
