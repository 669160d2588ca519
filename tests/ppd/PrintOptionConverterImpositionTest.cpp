#include <gtest/gtest.h>

#include <array>

#include "PrintOptionTestSupport.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

constexpr const char* kMode = "ImpositionMode_ImpositionCustomMode";

PlistDictionary toCanonical(PlistDictionary printOption) {
    Converter::convertToCanonicalImpositionKeyword(printOption);
    return printOption;
}

PlistDictionary toInternal(PlistDictionary printOption) {
    Converter::convertToInternalImpositionKeyword(printOption);
    return printOption;
}

PlistDictionary nup(const char* pages, const char* orientation, const char* paper) {
    return {{kMode, "Nup"}, {"ImpositionNup_NumOfPages", pages}, {"DocumentOrientation", orientation},
            {"ChgPrintPaperSizeType", paper}};
}

PlistDictionary pressLayout(const char* repeatX, const char* repeatY, const char* sheetDirection) {
    return {{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Nup"}, {"LayoutRepeatX", repeatX},
            {"LayoutRepeatY", repeatY}, {"SheetDirection", sheetDirection}};
}

}  // namespace

TEST(PrintOptionConverterImposition, NupBecomesTheFullPressLayout) {
    PlistDictionary printOption = nup("4up", "Portrait", "A3");
    printOption.set("ImpositionNup_Fitting", "True");
    printOption.set("ImpositionBooklet_Fitting", "False");
    printOption.set("ImpositionBooklet_LayoutBaseFile", "Left");
    printOption.set("ImpositionBooklet_CreepTotalOffset", "2.00");
    EXPECT_EQ(entriesOf(toCanonical(printOption)),
              entriesOf({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Nup"}, {"Fitting", "True"},
                         {"DocumentOrientation", "Portrait"}, {"ChgPrintPaperSizeType", "A3"}, {"LayoutRepeatX", "2"},
                         {"LayoutRepeatY", "2"}, {"SheetDirection", "Portrait"}, {"FinishSheetDirection", "Portrait"},
                         {"FinishFixedForm", "Custom"}, {"FinishedSizeName", ""}, {"FinishedSizeHeight", "119055"},
                         {"FinishedSizeWidth", "84189"}, {"LayoutBaseFile", "NUp-1side.json"},
                         {"ImpositionAutoDuplex", "False"}, {"FixedForm", "A3"}, {"SheetSizeName", ""},
                         {"SheetSizeHeight", ""}, {"SheetSizeWidth", ""}, {"FascicleMode", "None"},
                         {"NumberOfFascicle", "16"}, {"RotationAngle", "Rotate0"}}));
}

TEST(PrintOptionConverterImposition, NupLayoutAndFinishedSizeFollowPagesAndDirection) {
    // Pages, layout when portrait and when landscape, finished height and width on A4SEF
    // (168378 x 119056 cep).
    const std::array<const char*, 5> rows[] = {
        {"2up", "2_1_Landscape", "1_2_Portrait", "119056", "84189"},
        {"4up", "2_2_Portrait", "2_2_Landscape", "84189", "59528"},
        {"8up", "4_2_Landscape", "2_4_Portrait", "59528", "42094"},
        {"16up", "4_4_Portrait", "4_4_Landscape", "42094", "29764"},
        {"32up", "8_4_Landscape", "4_8_Portrait", "29764", "21047"},
    };
    for (const auto& [pages, portrait, landscape, height, width] : rows) {
        for (const char* orientation : {"Portrait", "Landscape"}) {
            auto printOption = toCanonical(nup(pages, orientation, "A4SEF"));
            const std::string layout = printOption.stringFor("LayoutRepeatX", "") + "_" +
                                       printOption.stringFor("LayoutRepeatY", "") + "_" +
                                       printOption.stringFor("SheetDirection", "");
            EXPECT_EQ(layout, std::string(orientation) == "Portrait" ? portrait : landscape) << pages;
            EXPECT_EQ(valuesOf(printOption, {"FinishSheetDirection", "FinishedSizeHeight", "FinishedSizeWidth"}),
                      (Strings{orientation, height, width}))
                << pages;
        }
    }
}

// Without a document orientation the direction comes from the paper: only the listed
// long-edge-feed and booklet sizes lie, not every name that ends in "LEF".
TEST(PrintOptionConverterImposition, NupDirectionComesFromThePaperWhenTheDocumentHasNone) {
    EXPECT_EQ(toCanonical(nup("2up", "Auto", "A4LEF")).stringFor("SheetDirection", ""), "Portrait");
    EXPECT_EQ(toCanonical(nup("2up", "Auto", "A4LEF")).stringFor("FinishSheetDirection", ""), "Landscape");
    EXPECT_EQ(toCanonical(nup("2up", "Auto", "A4SEF")).stringFor("FinishSheetDirection", ""), "Portrait");
    PlistDictionary noOrientation{{kMode, "Nup"}, {"ImpositionNup_NumOfPages", "2up"},
                                  {"ChgPrintPaperSizeType", "B5Booklet"}};
    EXPECT_EQ(toCanonical(noOrientation).stringFor("FinishSheetDirection", ""), "Landscape");
    for (const char* name : {"260x190", "Envkaku3LEF"})
        EXPECT_EQ(Converter::getImpositionFinishedSheetDirection(name), "Landscape") << name;
    for (const char* name : {"16KaiLEFC", "Envyouchou3LEF", "a4lef", ""})
        EXPECT_EQ(Converter::getImpositionFinishedSheetDirection(name), "Portrait") << name;
}

TEST(PrintOptionConverterImposition, NupWithAnUnknownPageCountOrSheetLeavesLayoutOrSizeUnset) {
    auto printOption = toCanonical(nup("64up", "Portrait", "A3"));
    for (const char* key : {"LayoutRepeatX", "LayoutRepeatY", "SheetDirection", "FinishedSizeHeight",
                            "FinishedSizeWidth", "ImpositionNup_NumOfPages"})
        EXPECT_FALSE(printOption.contains(key)) << key;
    EXPECT_EQ(printOption.stringFor("LayoutBaseFile", ""), "NUp-1side.json");
    EXPECT_EQ(printOption.stringFor("FinishFixedForm", ""), "Custom");
    auto unknownSheet = toCanonical(nup("2up", "Portrait", "NoChange"));
    EXPECT_EQ(valuesOf(unknownSheet, {"FinishedSizeHeight", "FinishedSizeWidth", "FixedForm"}), (Strings{"0", "0", "-"}));
}

TEST(PrintOptionConverterImposition, BookletBecomesSaddleStitchLayout) {
    PlistDictionary printOption{{kMode, "Booklet"},
                                {"ImpositionBooklet_LayoutBaseFile", "Right"},
                                {"ImpositionBooklet_CreepTotalOffset", "1.5"},
                                {"ImpositionBooklet_Fitting", "True"},
                                {"ImpositionNup_NumOfPages", "4up"},
                                {"DocumentOrientation", "Landscape"},
                                {"ChgPrintPaperSizeType", "A3"}};
    EXPECT_EQ(entriesOf(toCanonical(printOption)),
              entriesOf({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"}, {"Fitting", "True"},
                         {"DocumentOrientation", "Landscape"}, {"ChgPrintPaperSizeType", "A3"},
                         {"LayoutBaseFile", "SaddleStiching2x1(RightBinding).json"}, {"CreepSetting", "False"},
                         {"CreepTotalOffset", "0"}, {"CreepInitialOffsetX", "0"}, {"BackMargin", "850"},
                         {"FinishSheetDirection", "Portrait"}, {"FinishFixedForm", "Custom"}, {"FinishedSizeName", ""},
                         {"FinishedSizeHeight", "168378"}, {"FinishedSizeWidth", "119055"},
                         {"SheetDirection", "Landscape"}, {"RotationAngle", "Rotate90"}, {"FixedForm", "A3"},
                         {"SheetSizeName", ""}, {"SheetSizeHeight", ""}, {"SheetSizeWidth", ""},
                         {"ImpositionAutoDuplex", "True"}, {"NupLayout", "Z"}, {"LayoutRepeatX", "1"},
                         {"LayoutRepeatY", "1"}}));
}

TEST(PrintOptionConverterImposition, BookletOnALongEdgeFeedSheetHalvesTheWidth) {
    PlistDictionary printOption{{kMode, "Booklet"}, {"ImpositionBooklet_CreepTotalOffset", ""},
                                {"DocumentOrientation", "Portrait"}, {"ChgPrintPaperSizeType", "A4LEF"}};
    EXPECT_EQ(valuesOf(toCanonical(printOption), {"FinishedSizeHeight", "FinishedSizeWidth", "LayoutBaseFile", "RotationAngle",
                                                  "BackMargin", "CreepSetting", "ImpositionBooklet_CreepTotalOffset"}),
              (Strings{"119056", "84189", "SaddleStiching2x1(LeftBinding).json", "Rotate0", "-", "-", "-"}));
    printOption.set("DocumentOrientation", "Auto");
    EXPECT_FALSE(toCanonical(printOption).contains("RotationAngle"));
}

TEST(PrintOptionConverterImposition, SinglePageModesGetTheNormalLayout) {
    const PlistDictionary normalLayout{{"LayoutRepeatX", "1"}, {"LayoutRepeatY", "1"},
                                       {"LayoutBaseFile", "Normal-1side.json"}, {"SheetDirection", "Landscape"},
                                       {"CreepTotalOffset", "0"}, {"BackMargin", "0"}};
    auto expected = [&](PlistDictionary head) {
        for (const auto& [key, value] : normalLayout) head.set(key, value);
        return entriesOf(head);
    };
    EXPECT_EQ(entriesOf(toCanonical({{kMode, "Off"}, {"ImpositionNup_Fitting", "True"}})),
              expected({{"ImpositionMode", "Off"}, {"ImpositionCustomMode", "Advanced"}, {"Fitting", "False"}}));
    EXPECT_EQ(entriesOf(toCanonical({{kMode, "Template"}})),
              expected({{"ImpositionMode", "Template"}, {"ImpositionCustomMode", "Advanced"}, {"Fitting", "False"}}));
    EXPECT_EQ(entriesOf(toCanonical({{"ImpositionBooklet_Fitting", "True"}})), expected({{"Fitting", "False"}}));
    EXPECT_EQ(entriesOf(toCanonical({{kMode, "Sideways"}})), expected({{"Fitting", "False"}}));
}

TEST(PrintOptionConverterImposition, PressLayoutReadsBackAsPageCount) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"2", "1", "Landscape", "2up"},  {"1", "2", "Portrait", "2up"},  {"2", "2", "Portrait", "4up"},
        {"2", "2", "Landscape", "4up"},  {"4", "2", "Landscape", "8up"}, {"2", "4", "Portrait", "8up"},
        {"4", "4", "Portrait", "16up"},  {"4", "4", "Landscape", "16up"}, {"8", "4", "Landscape", "32up"},
        {"4", "8", "Portrait", "32up"},  {"3", "3", "Portrait", "2up"},  {"2", "1", "Portrait", "2up"},
        {"8", "4", "Portrait", "2up"},
    };
    for (const auto& [repeatX, repeatY, direction, pages] : rows) {
        auto printOption = toInternal(pressLayout(repeatX, repeatY, direction));
        PlistDictionary expected = withSinglePageImposition({{kMode, "Nup"}});
        expected.set("ImpositionNup_NumOfPages", pages);
        EXPECT_EQ(printOption, expected) << repeatX << "_" << repeatY << "_" << direction;
    }
    PlistDictionary missingPart = pressLayout("2", "2", "Portrait");
    missingPart.erase("LayoutRepeatY");
    EXPECT_EQ(toInternal(missingPart).stringFor("ImpositionNup_NumOfPages", ""), "2up");
}

TEST(PrintOptionConverterImposition, PressBookletReadsBackBindingAndCreep) {
    auto printOption = toInternal({{"ImpositionMode", "Job"},
                                   {"ImpositionCustomMode", "Booklet"},
                                   {"LayoutBaseFile", "SaddleStiching2x1(RightBinding).json"},
                                   {"BackMargin", "850"},
                                   {"CreepSetting", "False"},
                                   {"FinishedSizeHeight", "168378"},
                                   {"RotationAngle", "Rotate90"},
                                   {"NupLayout", "Z"}});
    EXPECT_EQ(entriesOf(printOption), entriesOf({{kMode, "Booklet"},
                                                 {"ImpositionBooklet_LayoutBaseFile", "Right"},
                                                 {"ImpositionBooklet_CreepTotalOffset", "1.50"},
                                                 {"ImpositionNup_NumOfPages", "2up"},
                                                 {"RotationAngle", "Rotate90"},
                                                 {"NupLayout", "Z"}}));
    auto leftWithoutMargin = toInternal({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"},
                                         {"LayoutBaseFile", "SaddleStiching2x1(LeftBinding).json"}});
    EXPECT_EQ(leftWithoutMargin.stringFor("ImpositionBooklet_LayoutBaseFile", ""), "Left");
    EXPECT_EQ(leftWithoutMargin.stringFor("ImpositionBooklet_CreepTotalOffset", ""), "0.00");
}

// Reading back takes the press's two mode keys away; only a complete pair gives a mode.
TEST(PrintOptionConverterImposition, PressModesReadBackAsThePanesMode) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Off", "Advanced", "Off"},     {"Template", "Advanced", "Template"}, {"Job", "Nup", "Nup"},
        {"Job", "Booklet", "Booklet"},  {"Job", "Advanced", "Off"},           {"Manual", "Nup", "Off"},
    };
    for (const auto& [impositionMode, customMode, mode] : rows)
        EXPECT_EQ(valuesOf(toInternal({{"ImpositionMode", impositionMode}, {"ImpositionCustomMode", customMode}}),
                           {kMode, "ImpositionMode", "ImpositionCustomMode"}),
                  (Strings{mode, "-", "-"}))
            << impositionMode << customMode;
    EXPECT_EQ(toInternal({{"ImpositionMode", "Job"}, {"LayoutRepeatX", "2"}}),
              withSinglePageImposition({{"ImpositionMode", "Job"}}));
    PlistDictionary empty;
    Converter::convertToInternalImpositionKeyword(empty);
    EXPECT_TRUE(empty.empty());
}

TEST(PrintOptionConverterImposition, ScaleToFitFollowsTheCurrentMode) {
    const std::pair<PlistDictionary, const char*> saved[] = {
        {{{kMode, "Booklet"}, {"ImpositionNup_Fitting", "True"}, {"ImpositionBooklet_Fitting", "Yes"}}, "Yes"},
        {{{kMode, "Nup"}, {"ImpositionBooklet_Fitting", "True"}}, "False"},
        {{{"ImpositionNup_Fitting", "True"}}, "False"}};
    for (auto [printOption, fitting] : saved) {
        Converter::saveScaleToFitValue(printOption);
        EXPECT_EQ(printOption.stringFor("Fitting", ""), fitting);
    }
    PlistDictionary setup{{kMode, "Nup"}, {"Fitting", "True"}};
    Converter::setupScaleToFitValue(setup);
    EXPECT_EQ(setup, (PlistDictionary{{kMode, "Nup"}, {"Fitting", "True"}, {"ImpositionNup_Fitting", "True"}}));
    PlistDictionary booklet{{kMode, "Booklet"}, {"Fitting", "False"}};
    Converter::setupScaleToFitValue(booklet);
    EXPECT_EQ(booklet.stringFor("ImpositionBooklet_Fitting", ""), "False");
    for (PlistDictionary unchanged : {PlistDictionary{{kMode, "Off"}, {"Fitting", "True"}}, PlistDictionary{{kMode, "Nup"}}}) {
        const std::size_t size = unchanged.size();
        Converter::setupScaleToFitValue(unchanged);
        EXPECT_EQ(unchanged.size(), size);
    }
}

// Custom sizes reach cep before the imposition halves the sheet for the finished size;
// without the flag they stay in millimetres, and so do the sizes computed from them.
TEST(PrintOptionConverterStepOrder, ImpositionSizesComeFromTheConvertedCustomSizes) {
    const PlistDictionary nupOnCustomSheet{
        {"ImpositionMode_ImpositionCustomMode", "Nup"}, {"ImpositionNup_NumOfPages", "2up"},
        {"DocumentOrientation", "Portrait"},            {"ChgPrintPaperSizeType", "Custom"},
        {"ChgPrintPaperSizeLength", "420"},             {"ChgPrintPaperSizeWidth", "297"}};
    const std::initializer_list<const char*> sizes = {"FinishedSizeHeight", "FinishedSizeWidth", "SheetSizeHeight",
                                                      "SheetSizeWidth", "FixedForm"};
    EXPECT_EQ(valuesOf(canonical(nupOnCustomSheet), sizes), (Strings{"168378", "119055", "238110", "168378", "Custom"}));
    EXPECT_EQ(valuesOf(canonical(nupOnCustomSheet, 0), sizes), (Strings{"297", "210", "420", "297", "Custom"}));
}

// Toward the press the fitting key of the current mode wins over any "Fitting" already
// there; reading back, scale to fit goes to the mode restored before it.
TEST(PrintOptionConverterStepOrder, FittingFollowsTheModeInBothDirections) {
    auto press = canonical({{"ImpositionMode_ImpositionCustomMode", "Nup"}, {"ImpositionNup_Fitting", "True"},
                            {"Fitting", "False"}});
    EXPECT_EQ(valuesOf(press, {"Fitting", "ImpositionNup_Fitting"}), (Strings{"True", "-"}));
    auto panes = internal({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"}, {"Fitting", "True"}});
    EXPECT_EQ(valuesOf(panes, {"ImpositionMode_ImpositionCustomMode", "ImpositionBooklet_Fitting", "ImpositionNup_Fitting"}),
              (Strings{"Booklet", "True", "-"}));
}

// The press's imposition keys are read back after the lengths: the creep comes from the
// gutter in cep, whatever the other lengths do.
TEST(PrintOptionConverterStepOrder, BookletCreepReadsBackFromTheGutterInCep) {
    auto panes = internal({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"}, {"BackMargin", "2835"},
                           {"FinishedSizeHeight", "119055"}, {"ChgPrintPaperSizeLength", "238110"}});
    EXPECT_EQ(valuesOf(panes, {"ImpositionBooklet_CreepTotalOffset", "ChgPrintPaperSizeLength", "FinishedSizeHeight"}),
              (Strings{"5.00", "420.00", "-"}));
}
