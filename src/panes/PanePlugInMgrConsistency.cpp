#include <algorithm>
#include <climits>
#include <cstdlib>
#include <functional>

#include "panes/PaneValueText_p.h"
#include "panes/PanePlugInMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr long long highestSpecialTonerPage = 200000;

// The print option dictionary read as the controls hold it.
class Options {
public:
    explicit Options(const PlistDictionary& printOption) : _printOption(printOption) {}

    std::string text(const char* key) const { return PaneValueText::textOfEntry(_printOption, key); }
    bool isEmpty(const char* key) const { return text(key).empty(); }
    /// A trigger holds only for a present, non-empty value equal to value.
    bool is(const char* key, const char* value) const {
        const std::string current = text(key);
        return !current.empty() && current == value;
    }

private:
    const PlistDictionary& _printOption;
};

struct Check {
    std::function<bool(const Options&)> trigger;
    const char* requiredKey;
    const char* alertKey;
};

const std::vector<Check>& checks() {
    static const std::vector<Check> table = {
        {[](const Options& o) { return o.is("SecPrint", "True"); }, "SecPrintPassword", "Alert_SecPrintPassword"},
        {[](const Options& o) { return o.is("MailNotifyJobEnd", "True"); }, "MailAddress", "Alert_MailAddress"},
        // Any user id type other than an id needs no id.
        {[](const Options& o) {
             return o.is("AuthJob", "True") && (o.isEmpty("AuthJobUserIdType") || o.is("AuthJobUserIdType", "ID"));
         },
         "AuthJobUserId", "Alert_AuthJobUserId"},
        {[](const Options& o) { return o.is("QVInputSlot", "TrayStk"); }, "StkName", "Alert_StkName"},
        {[](const Options& o) { return o.is("PhysicalPageRangeMode", "Appoint"); }, "PhysicalPageRange",
         "Alert_PhysicalPageRange"},
        {[](const Options& o) { return !o.isEmpty("RecordDiv") && !o.is("RecordDiv", "Off") && o.is("RecordSpec", "True"); },
         "RecordSpecNumber", "Alert_RecordSpecNumber"},
        {[](const Options& o) { return o.is("LogicalPageRangeMode", "Appoint"); }, "LogicalPageRange",
         "Alert_LogicalPageRange"},
        {[](const Options& o) { return o.is("BlankPapersFrontTray", "TrayStk"); }, "BlankPapersFrontStkName",
         "Alert_BlankPapersFrontStkName"},
        {[](const Options& o) { return o.is("BlankPapersBackTray", "TrayStk"); }, "BlankPapersBackStkName",
         "Alert_BlankPapersBackStkName"},
        {[](const Options& o) { return o.is("SeparatorsTray", "TrayStk"); }, "SeparatorsStkName",
         "Alert_SeparatorsStkName"},
        {[](const Options& o) {
             return o.is("ImpositionMode", "Template") || o.is("ImpositionMode_ImpositionCustomMode", "Template");
         },
         "ImpositionTemplate", "Alert_ImpositionTemplate"},
        {[](const Options& o) { return o.is("Imposition1stTray", "TrayStk"); }, "Imposition1stStkName",
         "Alert_Imposition1stStkName"},
        {[](const Options& o) { return o.is("ImpositionVariablePrintMode", "UseForm"); }, "ImpositionFormName",
         "Alert_ImpositionFormName"},
        {[](const Options& o) { return o.is("ImpositionPaginationMode", "Template"); }, "ImpositionPaginationTemplate",
         "Alert_ImpositionPaginationTemplate"},
        {[](const Options& o) { return o.is("ImpositionWaterMark", "True"); }, "ImpositionWaterMarkName",
         "Alert_ImpositionWaterMarkName"},
        {[](const Options& o) { return o.is("PaginationMode", "Template"); }, "PaginationTemplate",
         "Alert_PaginationTemplate"},
        {[](const Options& o) { return o.is("VariablePrintMode", "UseForm"); }, "FormName", "Alert_FormName"},
        {[](const Options& o) { return o.is("WaterMark", "True"); }, "WaterMarkName", "Alert_WaterMarkName"},
        {[](const Options& o) { return o.is("ColorPatch", "True"); }, "ColorPatchFile", "Alert_ColorPatchFile"},
        {[](const Options& o) { return o.is("OptionMemo", "True"); }, "OptionMemoFile", "Alert_OptionMemoFile"},
        {[](const Options& o) { return o.is("UserDefineMemo", "True"); }, "UserDefineMemoFile",
         "Alert_UserDefineMemoFile"},
        {[](const Options& o) { return o.is("MemoComment", "True"); }, "MemoCommentContent",
         "Alert_MemoCommentContent"},
        {[](const Options& o) {
             return o.is("CmykColorCorrection", "True") && o.is("CmykColorCorrectionProfileType", "DeviceLink");
         },
         "CmykDeviceLinkProfile", "Alert_CmykDeviceLinkProfile"},
        {[](const Options& o) {
             return o.is("CmykColorCorrection", "True") && o.is("CmykColorCorrectionProfileType", "Profile");
         },
         "CmykImageProfileName", "Alert_CmykImageProfileName"},
        {[](const Options& o) { return o.is("RgbColorCorrection", "True") && o.is("RgbImageCcMode", "Custom"); },
         "RgbImageCcModeCustomName", "Alert_RgbImageCcModeCustomName"},
        {[](const Options& o) {
             return o.is("SpotColorCorrection", "True") && o.is("SpotColorCorrectionProfile", "Profile");
         },
         "SpotColorCorrectionProfileName", "Alert_SpotColorCorrectionProfileName"},
        {[](const Options& o) {
             return o.is("RenderingProfile", "False") ||
                    (!o.isEmpty("RenderingProfileType") && !o.is("RenderingProfileType", "PrinterStandard"));
         },
         "RenderingProfileName", "Alert_RenderingProfileName"},
        {[](const Options& o) { return o.is("ImageUserAdjust", "True"); }, "ImageUserAdjustName",
         "Alert_ImageUserAdjustName"},
        {[](const Options& o) { return o.is("ImageTonerCurve", "True"); }, "ImageTonerCurveName",
         "Alert_ImageTonerCurveName"},
        {[](const Options& o) { return o.is("TextUserAdjust", "True"); }, "TextUserAdjustName",
         "Alert_TextUserAdjustName"},
        {[](const Options& o) { return o.is("TextTonerCurve", "True"); }, "TextTonerCurveName",
         "Alert_TextTonerCurveName"},
        {[](const Options& o) { return o.is("ImageCalibrationType", "File"); }, "ImageCalibration",
         "Alert_ImageCalibration"},
        {[](const Options& o) { return o.is("TextCalibrationType", "File"); }, "TextCalibration",
         "Alert_TextCalibration"},
        {[](const Options& o) { return o.is("ReplaceColorSettings", "True"); }, "ReplaceColorSettingsName",
         "Alert_ReplaceColorSettingsName"},
        {[](const Options& o) { return o.is("TrappingProcessMode", "Template"); }, "TrappingProcessFile",
         "Alert_TrappingProcessFile"},
    };
    return table;
}

// The keys of one side of the special toner settings.
struct SpecialTonerSide {
    const char* rangeMode;
    const char* range;
    const char* emptyRangeAlert;
    const char* incorrectRangeAlert;
    const char* maxPageAlert;
    const char* plateReplace;
    const char* spotName;
    const char* spotNameAlert;
    const char* overlay;
    const char* overlayMode;
    const char* objects[3];
    const char* objectAlert;
};

constexpr SpecialTonerSide frontSide = {
    "SpTonerPageRangeModeFront", "SpTonerPageRangeFront", "Alert_SpTonerPageRangeFront",
    "Alert_SpTonerPageRangeFront_Incorrect", "Alert_SpTonerPageRangeFront_MaxPage", "SpTonerPlateReplaceSpotFront",
    "SpTonerPlateReplaceSpotNameFront", "Alert_PlateReplaceSpotFront", "SpTonerOverlayFront", "SpTonerOverlayModeFront",
    {"SpTonerOverlayObjectFrontPhoto", "SpTonerOverlayObjectFrontText", "SpTonerOverlayObjectFrontDrawing"},
    "Alert_SpecifiedObjectFront"};

constexpr SpecialTonerSide backSide = {
    "SpTonerPageRangeModeBack", "SpTonerPageRangeBack", "Alert_SpTonerPageRangeBack",
    "Alert_SpTonerPageRangeBack_Incorrect", "Alert_SpTonerPageRangeBack_MaxPage", "SpTonerPlateReplaceSpotBack",
    "SpTonerPlateReplaceSpotNameBack", "Alert_PlateReplaceSpotBack", "SpTonerOverlayBack", "SpTonerOverlayModeBack",
    {"SpTonerOverlayObjectBackPhoto", "SpTonerOverlayObjectBackText", "SpTonerOverlayObjectBackDrawing"},
    "Alert_SpecifiedObjectBack"};

void checkPageRange(const Options& options, const SpecialTonerSide& side, std::vector<std::string>& alerts) {
    if (!options.is(side.rangeMode, "Appoint")) return;
    if (options.isEmpty(side.range)) {
        alerts.emplace_back(side.emptyRangeAlert);
        return;
    }
    switch (PanePlugInMgr::checkPageRangeForSpecialToner(options.text(side.range))) {
        case 2: alerts.emplace_back(side.incorrectRangeAlert); break;
        case 1: alerts.emplace_back(side.maxPageAlert); break;
        default: break;
    }
}

void checkSpecialTonerSide(const Options& options, const SpecialTonerSide& side, std::vector<std::string>& alerts) {
    checkPageRange(options, side, alerts);
    if (options.is(side.plateReplace, "Specified") && options.isEmpty(side.spotName))
        alerts.emplace_back(side.spotNameAlert);
    const bool noObject = std::all_of(std::begin(side.objects), std::end(side.objects),
                                      [&options](const char* key) { return options.is(key, "False"); });
    if (options.is(side.overlay, "True") && options.is(side.overlayMode, "SpecifiedObject") && noObject)
        alerts.emplace_back(side.objectAlert);
}

void checkSpecialToner(const Options& options, std::vector<std::string>& alerts) {
    if (!options.is("UseSpToner", "True")) return;
    if (options.is("SpTonerUseMode", "All") || options.is("SpTonerUseMode", "SpFront"))
        checkSpecialTonerSide(options, frontSide, alerts);
    if (options.is("SpTonerUseMode", "All") || options.is("SpTonerUseMode", "SpBack"))
        checkSpecialTonerSide(options, backSide, alerts);
}

// The leading whole number of text as a page field reads it (spaces, a sign, digits),
// held within the range of an int; 0 when there is none.
long long leadingInteger(const std::string& text) {
    const char* start = text.c_str();
    char* end = nullptr;
    const long long value = std::strtoll(start, &end, 10);
    if (end == start) return 0;
    return std::clamp<long long>(value, INT_MIN, INT_MAX);
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t found; (found = text.find(separator, start)) != std::string::npos; start = found + 1)
        parts.push_back(text.substr(start, found - start));
    parts.push_back(text.substr(start));
    return parts;
}

}  // namespace

std::vector<std::string> PanePlugInMgr::failedConsistencyChecks(const PlistDictionary& printOption) {
    const Options options(printOption);
    std::vector<std::string> alerts;
    for (const Check& check : checks())
        if (check.trigger(options) && options.isEmpty(check.requiredKey)) alerts.emplace_back(check.alertKey);
    checkSpecialToner(options, alerts);
    return alerts;
}

bool PanePlugInMgr::isPrintOptionConsistencyCheck(const PlistDictionary& printOption) {
    const auto alerts = failedConsistencyChecks(printOption);
    if (alerts.empty()) return true;
    AlertRequest request;
    request.messageText = _localized("Alert_ChkMsg");
    for (const std::string& key : alerts) request.informativeText += _localized(key) + "\r";
    request.buttons = {_localized("OK")};
    Alerts::runModal(request);
    return false;
}

int PanePlugInMgr::checkPageRangeForSpecialToner(const std::string& range) {
    std::vector<long long> pages;
    for (const std::string& part : split(range, ',')) {
        if (leadingInteger(part) == 0) return 2;
        if (std::count(part.begin(), part.end(), '-') > 1) return 2;
        for (const std::string& piece : split(part, '-')) {
            if (piece.empty()) continue;
            const long long page = leadingInteger(piece);
            pages.push_back(page);
            if (std::llabs(page) > highestSpecialTonerPage) return 1;
        }
    }
    for (std::size_t index = 0; index + 1 < pages.size(); ++index)
        if (pages[index] > pages[index + 1]) return 2;
    return 0;
}

}  // namespace ComQuorvantVelmar_Plugin
