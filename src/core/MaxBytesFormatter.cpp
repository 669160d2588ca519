#include "core/MaxBytesFormatter.h"

#include "core/DefaultCStringEncoding.h"

namespace ComQuorvantVelmar_Plugin {

MaxBytesFormatter::MaxBytesFormatter(std::uint32_t minBytes, std::uint32_t maxBytes)
    : _minBytes(minBytes), _maxBytes(maxBytes) {}

std::shared_ptr<MaxBytesFormatter> MaxBytesFormatter::setMaxBytesFormatter(std::uint32_t maxBytes) {
    return std::make_shared<MaxBytesFormatter>(0, maxBytes);
}

std::size_t MaxBytesFormatter::sizeOf(std::string_view text) const { return lengthByBytes(text); }

std::string MaxBytesFormatter::nullObjectDescription() const {
    return "NULL Object pointer to MaxBytesFormatter";
}

}  // namespace ComQuorvantVelmar_Plugin
