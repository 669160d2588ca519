// Feeds arbitrary bytes to the command as its JSON input file: read as a print option
// dictionary, then taken through each conversion of the convert command and written back
// as JSON. A strange file must end in a clear error, never a crash or a hang.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "CommandError.h"
#include "JsonIO.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace OstrinFlowCommand;

namespace {

// The conversion table of the product bundle, as the command registers it.
void registerProductBundle() {
    static const bool registered = [] {
        SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
        return true;
    }();
    (void)registered;
}

void convertEveryWay(const PlistDictionary& printOption) {
    PlistDictionary canonical = printOption;
    PrintOptionConverter::convertToCanonicalPpdKeyword(canonical, 1);
    PlistDictionary internal = printOption;
    PrintOptionConverter::convertToInternalPpdKeyword(internal);
    PrintOptionConverter::convertToInternalPpdKeyword(canonical);
    auto& converter = PrintOptionConverter::sharedInstance();
    toJson(PlistValue(converter.toPpdKeywordFormat(printOption))).dump();
    toJson(PlistValue(converter.toInputMgrFormat(printOption))).dump();
    toJson(PlistValue(canonical)).dump();
    toJson(PlistValue(internal)).dump();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    registerProductBundle();
    const int file = ::memfd_create("input.json", 0);
    if (file < 0) return 0;
    if (::write(file, data, size) == static_cast<ssize_t>(size)) {
        try {
            convertEveryWay(readJsonObject("/proc/self/fd/" + std::to_string(file)));
        } catch (const CommandError&) {
            // The command's answer to a file it cannot use: one line and exit code 3.
        }
    }
    ::close(file);
    return 0;
}
