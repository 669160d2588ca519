#pragma once

#include <cstdint>
#include <memory>

#include "core/TextLimitFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// Limits a text field by the size of its text in bytes of the default C-string encoding.
class MaxBytesFormatter : public TextLimitFormatter {
public:
    /// initWithMinBytes:max: — texts of minBytes to maxBytes bytes (an empty text always ends editing).
    MaxBytesFormatter(std::uint32_t minBytes, std::uint32_t maxBytes);

    /// The formatter a field gets for at most maxBytes bytes and no minimum.
    static std::shared_ptr<MaxBytesFormatter> setMaxBytesFormatter(std::uint32_t maxBytes);

    /// The fewest bytes a non-empty text may end editing with.
    std::uint32_t minBytes() const { return _minBytes; }
    /// The most bytes a text may hold.
    std::uint32_t maxBytes() const { return _maxBytes; }
    /// lengthByBytes of text.
    std::size_t sizeOf(std::string_view text) const override;

protected:
    std::uint32_t minimumSize() const override { return _minBytes; }
    std::uint32_t maximumSize() const override { return _maxBytes; }
    std::string nullObjectDescription() const override;

private:
    std::uint32_t _minBytes;
    std::uint32_t _maxBytes;
};

}  // namespace ComQuorvantVelmar_Plugin
