#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// text in the system's default C-string encoding, converted lossily: each byte that cannot
/// be converted becomes "?".
std::string toDefaultCString(std::string_view text);
/// The byte length of text in the default C-string encoding (of its lossy conversion when
/// text cannot be converted without loss); 0 for an empty text.
std::size_t lengthByBytes(std::string_view text);

}  // namespace ComQuorvantVelmar_Plugin
