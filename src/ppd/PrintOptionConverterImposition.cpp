// Imposition: the panes' mode, N-up and booklet keys against the press's layout keys,
// the finished and sheet sizes they imply, and scale to fit.

#include <algorithm>
#include <array>

#include "ppd/PaperSize.h"
#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSupport;

namespace {

constexpr std::string_view kMode = "ImpositionMode_ImpositionCustomMode";

struct ModeRow {
    std::string_view internal;
    std::string_view impositionMode;
    std::string_view customMode;
};

constexpr std::array<ModeRow, 4> kModeRows{{
    {"Off", "Off", "Advanced"},
    {"Template", "Template", "Advanced"},
    {"Nup", "Job", "Nup"},
    {"Booklet", "Job", "Booklet"},
}};

// One N-up page count: the layout for portrait and landscape finished sheets, and the
// finished size as the sheet's longer (MAX) or shorter (MIN) side over a divisor.
struct NupRow {
    std::string_view pages;
    std::string_view portraitLayout;
    std::string_view landscapeLayout;
    bool heightFromLongerSide;
    int heightDivisor;
    int widthDivisor;
};

constexpr std::array<NupRow, 5> kNupRows{{
    {"2up", "2_1_Landscape", "1_2_Portrait", false, 1, 2},
    {"4up", "2_2_Portrait", "2_2_Landscape", true, 2, 2},
    {"8up", "4_2_Landscape", "2_4_Portrait", false, 2, 4},
    {"16up", "4_4_Portrait", "4_4_Landscape", true, 4, 4},
    {"32up", "8_4_Landscape", "4_8_Portrait", false, 4, 8},
}};

constexpr std::array<std::string_view, 20> kLandscapeFinishedSheets{
    "A4LEF",     "B5LEF",         "80x100LEF", "85x110LEF", "A2LEF",    "B3LEF",        "A4Booklet",
    "B5Booklet", "A5Booklet",     "85x110Booklet", "A5LEF", "260x180",  "A6Booklet",    "B6Booklet",
    "16KaiLEF",  "260x190",       "Kikuban16LEF",  "Kikuban8LEF", "Shirokuban16LEF", "Envkaku3LEF"};

constexpr std::array<std::string_view, 17> kPressLayoutKeys{
    "LayoutRepeatX",        "LayoutRepeatY",    "LayoutBaseFile",     "CreepSetting",       "BackMargin",
    "CreepTotalOffset",     "CreepInitialOffsetX", "FinishSheetDirection", "FinishFixedForm", "FinishedSizeName",
    "FinishedSizeHeight",   "FinishedSizeWidth", "SheetDirection",    "FixedForm",          "SheetSizeName",
    "SheetSizeHeight",      "SheetSizeWidth"};

constexpr std::string_view kRightBindingBooklet = "SaddleStiching2x1(RightBinding).json";
constexpr std::string_view kLeftBindingBooklet = "SaddleStiching2x1(LeftBinding).json";

struct SheetSize {
    int length;
    int width;
};

SheetSize sheetSize(const PlistDictionary& printOption) {
    const std::string type = printOption.stringFor("ChgPrintPaperSizeType", "");
    if (type == "Custom") {
        return {integerOf(printOption.stringFor("ChgPrintPaperSizeLength", "")),
                integerOf(printOption.stringFor("ChgPrintPaperSizeWidth", ""))};
    }
    const PaperSize* size = PaperSize::find(type);
    return size ? SheetSize{static_cast<int>(size->height), static_cast<int>(size->width)} : SheetSize{0, 0};
}

std::string finishedDirection(const PlistDictionary& printOption) {
    if (holds(printOption, "DocumentOrientation", "Portrait") || holds(printOption, "DocumentOrientation", "Landscape"))
        return *printOption.stringFor("DocumentOrientation");
    return PrintOptionConverter::getImpositionFinishedSheetDirection(printOption.stringFor("ChgPrintPaperSizeType", ""));
}

void writeModeAndFitting(PlistDictionary& printOption) {
    std::string_view fittingKey;
    if (printOption.contains(kMode)) {
        for (const ModeRow& row : kModeRows) {
            if (!holds(printOption, kMode, row.internal)) continue;
            printOption.set("ImpositionMode", row.impositionMode);
            printOption.set("ImpositionCustomMode", row.customMode);
        }
        if (holds(printOption, kMode, "Nup")) fittingKey = "ImpositionNup_Fitting";
        if (holds(printOption, kMode, "Booklet")) fittingKey = "ImpositionBooklet_Fitting";
        printOption.erase(kMode);
    }
    const PlistValue* fitting = fittingKey.empty() ? nullptr : printOption.find(fittingKey);
    PlistValue value = fitting ? *fitting : PlistValue("False");
    printOption.erase("ImpositionNup_Fitting");
    printOption.erase("ImpositionBooklet_Fitting");
    printOption.set("Fitting", std::move(value));
}

void layOutNup(PlistDictionary& printOption) {
    const std::string direction = finishedDirection(printOption);
    const SheetSize sheet = sheetSize(printOption);
    const int longer = std::max(sheet.length, sheet.width);
    const int shorter = std::min(sheet.length, sheet.width);
    const auto row = std::find_if(kNupRows.begin(), kNupRows.end(), [&](const NupRow& candidate) {
        return holds(printOption, "ImpositionNup_NumOfPages", candidate.pages);
    });
    // A page count outside 2up..32up leaves the layout keys unset.
    if (row != kNupRows.end()) {
        const auto parts = components(direction == "Portrait" ? row->portraitLayout : row->landscapeLayout, '_');
        printOption.set("LayoutRepeatX", parts[0]);
        printOption.set("LayoutRepeatY", parts[1]);
        printOption.set("SheetDirection", parts[2]);
    }
    printOption.set("FinishSheetDirection", direction);
    printOption.set("FinishFixedForm", "Custom");
    printOption.set("FinishedSizeName", "");
    if (row != kNupRows.end()) {
        printOption.set("FinishedSizeHeight",
                        std::to_string((row->heightFromLongerSide ? longer : shorter) / row->heightDivisor));
        printOption.set("FinishedSizeWidth",
                        std::to_string((row->heightFromLongerSide ? shorter : longer) / row->widthDivisor));
    }
    printOption.set("LayoutBaseFile", "NUp-1side.json");
    printOption.set("ImpositionAutoDuplex", "False");
    PrintOptionConverter::convertImpositionSheetSize(printOption);
    PrintOptionConverter::restoreDefaultSettigImposition(printOption, "Nup");
}

void layOutBooklet(PlistDictionary& printOption) {
    printOption.set("LayoutBaseFile", holds(printOption, "ImpositionBooklet_LayoutBaseFile", "Right")
                                          ? kRightBindingBooklet
                                          : kLeftBindingBooklet);
    if (auto creep = nonEmptyString(printOption, "ImpositionBooklet_CreepTotalOffset")) {
        printOption.set("CreepSetting", "False");
        printOption.set("CreepTotalOffset", "0");
        printOption.set("CreepInitialOffsetX", "0");
        printOption.set("BackMargin", std::to_string(integerOf(PrintOptionConverter::convertMmToCep(*creep))));
        printOption.erase("ImpositionBooklet_CreepTotalOffset");
    }
    const SheetSize sheet = sheetSize(printOption);
    const bool longSideAcross = sheet.length < sheet.width;
    printOption.set("FinishSheetDirection", "Portrait");
    printOption.set("FinishFixedForm", "Custom");
    printOption.set("FinishedSizeName", "");
    printOption.set("FinishedSizeHeight", std::to_string(longSideAcross ? sheet.length : sheet.width));
    printOption.set("FinishedSizeWidth", std::to_string(longSideAcross ? sheet.width / 2 : sheet.length / 2));
    printOption.set("SheetDirection", "Landscape");
    if (holds(printOption, "DocumentOrientation", "Portrait")) printOption.set("RotationAngle", "Rotate0");
    if (holds(printOption, "DocumentOrientation", "Landscape")) printOption.set("RotationAngle", "Rotate90");
    PrintOptionConverter::convertImpositionSheetSize(printOption);
    PrintOptionConverter::restoreDefaultSettigImposition(printOption, "Booklet");
}

void layOutSingle(PlistDictionary& printOption) {
    printOption.set("LayoutRepeatX", "1");
    printOption.set("LayoutRepeatY", "1");
    printOption.set("LayoutBaseFile", "Normal-1side.json");
    printOption.set("SheetDirection", "Landscape");
    printOption.set("CreepTotalOffset", "0");
    printOption.set("BackMargin", "0");
}

std::string readMode(PlistDictionary& printOption) {
    if (!printOption.contains("ImpositionMode") || !printOption.contains("ImpositionCustomMode")) return "Off";
    std::string mode = "Off";
    if (holds(printOption, "ImpositionMode", "Template")) mode = "Template";
    if (holds(printOption, "ImpositionMode", "Job") && holds(printOption, "ImpositionCustomMode", "Nup")) mode = "Nup";
    if (holds(printOption, "ImpositionMode", "Job") && holds(printOption, "ImpositionCustomMode", "Booklet"))
        mode = "Booklet";
    printOption.set(std::string(kMode), mode);
    printOption.erase("ImpositionMode");
    printOption.erase("ImpositionCustomMode");
    return mode;
}

// Layout parts as the press wrote them; a missing part never matches a known layout.
std::string layoutPart(const PlistDictionary& printOption, std::string_view key) {
    const PlistValue* value = printOption.find(key);
    if (value && value->string()) return *value->string();
    if (value && value->integer()) return std::to_string(*value->integer());
    return "(null)";
}

std::string_view readNupPages(const PlistDictionary& printOption) {
    const std::string layout = layoutPart(printOption, "LayoutRepeatX") + "_" +
                               layoutPart(printOption, "LayoutRepeatY") + "_" +
                               layoutPart(printOption, "SheetDirection");
    for (const NupRow& row : kNupRows)
        if (layout == row.portraitLayout || layout == row.landscapeLayout) return row.pages;
    return "2up";
}

void readBooklet(PlistDictionary& printOption) {
    printOption.set("ImpositionBooklet_LayoutBaseFile",
                    holds(printOption, "LayoutBaseFile", kRightBindingBooklet) ? "Right" : "Left");
    const PlistValue* backMargin = printOption.find("BackMargin");
    printOption.set("ImpositionBooklet_CreepTotalOffset",
                    PrintOptionConverter::convertCepToMm(std::to_string(backMargin ? integerOfValue(*backMargin) : 0)));
    printOption.set("ImpositionNup_NumOfPages", "2up");
}

}  // namespace

void PrintOptionConverter::convertToCanonicalImpositionKeyword(PlistDictionary& printOption) {
    const std::string mode = printOption.stringFor(kMode, "");
    writeModeAndFitting(printOption);
    if (mode == "Nup") {
        layOutNup(printOption);
    } else if (mode == "Booklet") {
        layOutBooklet(printOption);
    } else {
        layOutSingle(printOption);
    }
    for (std::string_view key : {"ImpositionNup_NumOfPages", "ImpositionBooklet_LayoutBaseFile",
                                 "ImpositionBooklet_CreepTotalOffset"})
        printOption.erase(key);
}

void PrintOptionConverter::convertToInternalImpositionKeyword(PlistDictionary& printOption) {
    if (printOption.empty()) return;
    const std::string mode = readMode(printOption);
    if (mode == "Booklet") {
        readBooklet(printOption);
    } else {
        printOption.set("ImpositionNup_NumOfPages", mode == "Nup" ? readNupPages(printOption) : "2up");
        printOption.set("ImpositionBooklet_LayoutBaseFile", "Left");
        printOption.set("ImpositionBooklet_CreepTotalOffset", "0.00");
    }
    for (std::string_view key : kPressLayoutKeys) printOption.erase(key);
}

void PrintOptionConverter::saveScaleToFitValue(PlistDictionary& printOption) {
    const PlistValue* fitting = nullptr;
    if (holds(printOption, kMode, "Nup")) fitting = printOption.find("ImpositionNup_Fitting");
    if (holds(printOption, kMode, "Booklet")) fitting = printOption.find("ImpositionBooklet_Fitting");
    printOption.set("Fitting", fitting ? *fitting : PlistValue("False"));
}

void PrintOptionConverter::setupScaleToFitValue(PlistDictionary& printOption) {
    const PlistValue* fitting = printOption.find("Fitting");
    if (!fitting || !printOption.contains(kMode)) return;
    const PlistValue value = *fitting;
    if (holds(printOption, kMode, "Nup")) printOption.set("ImpositionNup_Fitting", value);
    if (holds(printOption, kMode, "Booklet")) printOption.set("ImpositionBooklet_Fitting", value);
}

// A named size leaves the sheet size keys empty on purpose: the press takes the size from
// "FixedForm", and a looked-up size would override the tray's real paper.
void PrintOptionConverter::convertImpositionSheetSize(PlistDictionary& printOption) {
    const auto type = printOption.stringFor("ChgPrintPaperSizeType");
    if (!type || *type == "NoChange") return;
    PlistValue height("");
    PlistValue width("");
    if (*type == "Custom") {
        if (const PlistValue* length = printOption.find("ChgPrintPaperSizeLength")) height = *length;
        if (const PlistValue* customWidth = printOption.find("ChgPrintPaperSizeWidth")) width = *customWidth;
    }
    printOption.set("FixedForm", *type);
    printOption.set("SheetSizeName", "");
    printOption.set("SheetSizeHeight", std::move(height));
    printOption.set("SheetSizeWidth", std::move(width));
}

void PrintOptionConverter::restoreDefaultSettigImposition(PlistDictionary& printOption,
                                                          std::string_view impositionMode) {
    if (impositionMode == "Nup") {
        printOption.set("FascicleMode", "None");
        printOption.set("NumberOfFascicle", "16");
        printOption.set("RotationAngle", "Rotate0");
    } else if (impositionMode == "Booklet") {
        printOption.set("ImpositionAutoDuplex", "True");
        printOption.set("NupLayout", "Z");
        printOption.set("LayoutRepeatX", "1");
        printOption.set("LayoutRepeatY", "1");
    }
}

std::string PrintOptionConverter::getImpositionFinishedSheetDirection(std::string_view paperSizeType) {
    const bool landscape = std::find(kLandscapeFinishedSheets.begin(), kLandscapeFinishedSheets.end(),
                                     paperSizeType) != kLandscapeFinishedSheets.end();
    return landscape ? "Landscape" : "Portrait";
}

std::optional<PlistDictionary> PrintOptionConverter::getCepSizeFromPaperSizeType(std::string_view paperSizeType) {
    const PaperSize* size = PaperSize::find(paperSizeType);
    if (!size) return std::nullopt;
    return size->record();
}

}  // namespace ComQuorvantVelmar_Plugin
