#pragma once

#include <cstdint>
#include <memory>

#include "core/TextLimitFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// Limits a text field by the number of characters of its text.
class MaxLengthFormatter : public TextLimitFormatter {
public:
    /// initWithMinLength:max: — texts of minLength to maxLength characters (an empty text
    /// always ends editing).
    MaxLengthFormatter(std::uint32_t minLength, std::uint32_t maxLength);

    /// The formatter a field gets for minLength to maxLength characters.
    static std::shared_ptr<MaxLengthFormatter> setLengthFormatter(std::uint32_t minLength,
                                                                  std::uint32_t maxLength);

    /// The fewest characters a non-empty text may end editing with.
    std::uint32_t minLength() const { return _minLength; }
    /// The most characters a text may hold.
    std::uint32_t maxLength() const { return _maxLength; }
    /// The character length of text (TextCharacters::characterLength).
    std::size_t sizeOf(std::string_view text) const override;

protected:
    std::uint32_t minimumSize() const override { return _minLength; }
    std::uint32_t maximumSize() const override { return _maxLength; }
    std::string nullObjectDescription() const override;

private:
    std::uint32_t _minLength;
    std::uint32_t _maxLength;
};

}  // namespace ComQuorvantVelmar_Plugin
