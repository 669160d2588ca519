// Property-list resources and printer data come from files and PPDs that anyone can edit.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/PlistIO.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace ComQuorvantVelmar_Plugin;
    auto parsed = PlistIO::parse(std::string_view(reinterpret_cast<const char*>(data), size));
    if (parsed) (void)PlistIO::serialize(*parsed, PlistIO::Format::Binary);
    return 0;
}
