// Feeds arbitrary option values to the lp quoting and parses the result as lp does: every
// value that is quoted must come back from lp's option parser exactly as it went in.
#include <cups/cups.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "pde/LpOptionQuoting.h"

using namespace ComQuorvantVelmar_Plugin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string value(reinterpret_cast<const char*>(data), size);
    const auto argument = LpOptionQuoting::lpOptionArgument("QVNote", value);
    if (!argument) {
        if (value.find('\0') == std::string::npos) std::abort();
        return 0;
    }
    // A value beginning with "{" is a collection on every path to cupsd.
    if (!value.empty() && value[0] == '{') return 0;
    cups_option_t* options = nullptr;
    const int count = cupsParseOptions(argument->c_str(), 0, &options);
    if (count != 1 || value != options[0].value) std::abort();
    cupsFreeOptions(count, options);
    return 0;
}
