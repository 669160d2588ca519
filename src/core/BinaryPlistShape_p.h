#pragma once

#include <cstddef>
#include <string_view>

namespace ComQuorvantVelmar_Plugin::BinaryPlistShape {

/// Whether libplist can read the binary property list bytes in bounded time and stack:
/// every reference inside the list's bounds, no container nested more than largestNesting
/// levels below the top, and no more objects, each shared reference counted once per
/// place it is used, than the list has bytes. False for bytes without a readable trailer.
bool isReadable(std::string_view bytes, std::size_t largestNesting);

}  // namespace ComQuorvantVelmar_Plugin::BinaryPlistShape
