// Feeds arbitrary bytes to the PPD access as a PPD file and reads every option and the
// printer data a pane may ask for: a malformed PPD must never crash or hang the panel.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "ppd/PpdData.h"
#include "ppd/PpdFileExt.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

void readEverything(PpdFile& ppd) {
    for (const std::string& option : ppd.optionNames()) {
        ppd.optionKeywords(option);
        ppd.optionAliases(option);
        ppd.mainAlias(option);
        ppd.defaultOptionChoice(option);
        ppd.findMarkedChoice(option);
    }
    ppd.defaultValueDictionary();
    ppd.product();
    ppd.markDefaults();
    for (const char* command : {"FeederInfoList", "StackerInfoList", "DeviceList", "Rows", "A"})
        PpdData::propertyListForCommand(ppd.ppdFile(), command);
}

}  // namespace

// libcups 2.4 keeps only the last *LanguageEncoding and *LanguageVersion of a file and
// leaks the copies of the earlier ones; that is libcups' own loss, not the panel's.
extern "C" const char* __lsan_default_suppressions() { return "leak:_ppdOpen\n"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const int file = ::memfd_create("fuzz.ppd", 0);
    if (file < 0) return 0;
    if (::write(file, data, size) == static_cast<ssize_t>(size)) {
        const std::string path = "/proc/self/fd/" + std::to_string(file);
        if (auto ppd = PpdFileExt::initWithContentsOfFile(path)) readEverything(*ppd);
    }
    ::close(file);
    return 0;
}
