#include "core/MaxLengthFormatter.h"

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {

MaxLengthFormatter::MaxLengthFormatter(std::uint32_t minLength, std::uint32_t maxLength)
    : _minLength(minLength), _maxLength(maxLength) {}

std::shared_ptr<MaxLengthFormatter> MaxLengthFormatter::setLengthFormatter(std::uint32_t minLength,
                                                                           std::uint32_t maxLength) {
    return std::make_shared<MaxLengthFormatter>(minLength, maxLength);
}

std::size_t MaxLengthFormatter::sizeOf(std::string_view text) const {
    return TextCharacters::characterLength(text);
}

std::string MaxLengthFormatter::nullObjectDescription() const {
    return "NULL Object pointer to MaxLengthFormatter";
}

}  // namespace ComQuorvantVelmar_Plugin
