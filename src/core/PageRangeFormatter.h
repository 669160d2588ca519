#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/ValidationFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// Validates page ranges such as "1-3,5": pages from 1 to 2147483647.
class PageRangeFormatter : public ValidationFormatter {
public:
    using ValidationFormatter::ValidationFormatter;

    /// The formatter a page-range field gets for at most maxBytes bytes of characterSet.
    static std::shared_ptr<PageRangeFormatter> setValidationFormatter(
        std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString);
    /// The characters a page-range field accepts: digits, "-", "," and space.
    static CharacterSet pageRangeCharacterSet();

    /// _isValidPageRange of text with pages 1 to 2147483647.
    bool isValid(std::string_view text) const override;
    /// Whether text (white space ignored) is a list of pages and ranges separated by "," or
    /// line feeds, none of them malformed, reversed or starting at page 0, and one of them
    /// touching minimum to maximum; true for an empty text.
    static bool _isValidPageRange(std::string_view text, std::int64_t minimum, std::int64_t maximum);
};

}  // namespace ComQuorvantVelmar_Plugin
