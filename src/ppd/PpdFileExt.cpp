#include "ppd/PpdFileExt.h"

#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

PlistDictionary description(int uiType, const char* defaultValue, PlistArray options = {}) {
    PlistDictionary entry{{"uiType", uiType}, {"defaultValue", defaultValue}};
    if (!options.empty()) entry.set("options", std::move(options));
    return entry;
}

// Options the press understands although its PPD does not declare them. They are kept
// for the panes and deliberately not merged into any PPD answer.
PlistDictionary builtInExtensionOptions() {
    return PlistDictionary{
        {"QZSRGBAutoType",
         description(PpdUIPickOne, "sRGBAutoAdjust",
                     {"sRGBAutoAdjust", "sRGBAutoPerson", "sRGBAutoScene", "sRGBAutoOnSitePhoto"})},
        {"QZSRGBAuto", description(PpdUIBoolean, "False")},
        {"QZSaveFile_DPI", description(PpdUIPickOne, "600")},
        {"QZSaveFile_FileType", description(PpdUIPickOne, "None", {"None", "TIFF", "PDF"})},
        {"QZRIPMode", description(PpdUIPickOne, "CPSI", {"CPSI", "APPE"})},
    };
}

}  // namespace

PpdFileExt::PpdFileExt(ppd_file_t* ppdFile) : PpdFileExt(ppdFile, false) {}

PpdFileExt::PpdFileExt(ppd_file_t* ppdFile, bool isOpenedBySelf)
    : PpdFile(ppdFile, isOpenedBySelf), _extOptions(builtInExtensionOptions()) {}

std::unique_ptr<PpdFileExt> PpdFileExt::initWithContentsOfFile(const std::string& path,
                                                               std::string* error) {
    ppd_file_t* ppd = openPpd(path, error);
    if (!ppd) return nullptr;
    return std::unique_ptr<PpdFileExt>(new PpdFileExt(ppd, true));
}

std::string PpdFileExt::localizedOptionKeyword(const std::string& option,
                                               const std::string& optionKeyword) {
    return BSLocalizedString(option + ":" + optionKeyword);
}

}  // namespace ComQuorvantVelmar_Plugin
