// Feeds arbitrary bytes to the favorite file reader, then writes what it accepted and
// reads that back: neither may crash, hang or lose the options it accepted.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "favorites/FavoriteFileFormat_p.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

std::optional<FavoriteFileFormat::Contents> readBytes(const std::string& bytes) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
        ::fmemopen(const_cast<char*>(bytes.data()), bytes.size(), "rb"), std::fclose);
    if (!stream) return std::nullopt;
    return FavoriteFileFormat::read(stream.get(), 13);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    auto contents = readBytes(std::string(reinterpret_cast<const char*>(data), size));
    if (!contents) return 0;
    if (contents->options.empty()) std::abort();
    const std::string written = FavoriteFileFormat::bytes(contents->comment, contents->options, 13,
                                                          StringEncoding::DOSJapanese);
    if (!readBytes(written)) std::abort();
    return 0;
}
