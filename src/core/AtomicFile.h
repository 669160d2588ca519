#pragma once

#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin::AtomicFile {

/// Writes bytes to path through a temporary file in the same folder, flushed and renamed
/// over the target, so a failed write leaves any previous file intact. False on failure.
bool write(const std::string& path, std::string_view bytes);

}  // namespace ComQuorvantVelmar_Plugin::AtomicFile
