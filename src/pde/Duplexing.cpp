#include "pde/Duplexing.h"

#include "pde/PrintSettings.h"

namespace ComQuorvantVelmar_Plugin::Duplexing {

std::optional<std::int32_t> fromSides(const PrintSettings& settings) {
    const PlistValue* sides = settings.value("sides");
    const std::string* text = sides ? sides->string() : nullptr;
    if (!text) return std::nullopt;
    if (*text == "one-sided") return None;
    if (*text == "two-sided-long-edge") return DuplexNoTumble;
    if (*text == "two-sided-short-edge") return DuplexTumble;
    return std::nullopt;
}

}  // namespace ComQuorvantVelmar_Plugin::Duplexing
