#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;

// Custom sizes reach cep before the imposition computes the finished and sheet sizes;
// without the flag they stay in millimetres, and so do the sizes computed from them.
TEST(PrintOptionConverterStepOrder, ImpositionSizesComeFromTheConvertedCustomSizes) {
    const PlistDictionary nupOnCustomSheet{
        {"ImpositionMode_ImpositionCustomMode", "Nup"}, {"ImpositionNup_NumOfPages", "2up"},
        {"DocumentOrientation", "Portrait"},            {"ChgPrintPaperSizeType", "Custom"},
        {"ChgPrintPaperSizeLength", "420"},             {"ChgPrintPaperSizeWidth", "297"}};
    const std::initializer_list<const char*> sizes = {"FinishedSizeHeight", "FinishedSizeWidth", "SheetSizeHeight",
                                                      "SheetSizeWidth"};
    EXPECT_EQ(valuesOf(canonical(nupOnCustomSheet), sizes), (Strings{"168378", "119055", "238110", "168378"}));
    EXPECT_EQ(valuesOf(canonical(nupOnCustomSheet, 0), sizes), (Strings{"297", "210", "420", "297"}));
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

TEST(PrintOptionConverterStepOrder, PlainEntryPointsConvertWithTheFlagAndPassNullThrough) {
    EXPECT_EQ(ConvertToCanonicalPpdKeyword(nullptr), nullptr);
    EXPECT_EQ(ConvertToInternalPpdKeyword(nullptr), nullptr);
    PlistDictionary printOption{{"PrintPositionFrontWidth", "10"}};
    EXPECT_EQ(ConvertToCanonicalPpdKeyword(&printOption), &printOption);
    EXPECT_EQ(printOption.stringFor("PrintPositionFrontWidth", ""), "5669");
    EXPECT_EQ(ConvertToInternalPpdKeyword(&printOption), &printOption);
    EXPECT_EQ(printOption.stringFor("PrintPositionFrontWidth", ""), "10.00");
}
