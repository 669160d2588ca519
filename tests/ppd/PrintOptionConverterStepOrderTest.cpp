#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;

namespace {

PlistDictionary nupOnCustomSheet() {
    return {{"ImpositionMode_ImpositionCustomMode", "Nup"}, {"ImpositionNup_NumOfPages", "2up"},
            {"DocumentOrientation", "Portrait"},            {"ChgPrintPaperSizeType", "Custom"},
            {"ChgPrintPaperSizeLength", "420"},             {"ChgPrintPaperSizeWidth", "297"}};
}

}  // namespace

// Custom sizes reach cep before the imposition computes the finished and sheet sizes.
TEST(PrintOptionConverterStepOrder, ImpositionSizesComeFromCustomSizesInCep) {
    auto press = canonical(nupOnCustomSheet());
    EXPECT_EQ(press.stringFor("FinishedSizeHeight", ""), "168378");
    EXPECT_EQ(press.stringFor("FinishedSizeWidth", ""), "119055");
    EXPECT_EQ(press.stringFor("SheetSizeHeight", ""), "238110");
    EXPECT_EQ(press.stringFor("SheetSizeWidth", ""), "168378");
}

// Without the flag the custom sizes stay in millimetres, and so do the sizes computed
// from them.
TEST(PrintOptionConverterStepOrder, WithoutTheFlagImpositionSizesStayInMillimetres) {
    auto press = canonical(nupOnCustomSheet(), 0);
    EXPECT_EQ(press.stringFor("FinishedSizeHeight", ""), "297");
    EXPECT_EQ(press.stringFor("FinishedSizeWidth", ""), "210");
    EXPECT_EQ(press.stringFor("SheetSizeHeight", ""), "420");
}

// Scale to fit is read back after the imposition mode is known.
TEST(PrintOptionConverterStepOrder, FittingReadsBackIntoTheModeRestoredBeforeIt) {
    auto panes = internal({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"}, {"Fitting", "True"}});
    EXPECT_EQ(panes.stringFor("ImpositionMode_ImpositionCustomMode", ""), "Booklet");
    EXPECT_EQ(panes.stringFor("ImpositionBooklet_Fitting", ""), "True");
    EXPECT_FALSE(panes.contains("ImpositionNup_Fitting"));
}

// The per-mode fitting key of the current mode wins over any "Fitting" already there.
TEST(PrintOptionConverterStepOrder, FittingIsWrittenFromTheModeBeforeTheModeKeysGo) {
    auto press = canonical({{"ImpositionMode_ImpositionCustomMode", "Nup"}, {"ImpositionNup_Fitting", "True"},
                            {"Fitting", "False"}});
    EXPECT_EQ(press.stringFor("Fitting", ""), "True");
    EXPECT_FALSE(press.contains("ImpositionNup_Fitting"));
}

// The press's imposition keys are read back after the lengths: the creep comes from the
// gutter in cep, whatever the other lengths do.
TEST(PrintOptionConverterStepOrder, BookletCreepReadsBackFromTheGutterInCep) {
    auto panes = internal({{"ImpositionMode", "Job"}, {"ImpositionCustomMode", "Booklet"}, {"BackMargin", "2835"},
                           {"FinishedSizeHeight", "119055"}, {"ChgPrintPaperSizeLength", "238110"}});
    EXPECT_EQ(panes.stringFor("ImpositionBooklet_CreepTotalOffset", ""), "5.00");
    EXPECT_EQ(panes.stringFor("ChgPrintPaperSizeLength", ""), "420.00");
    EXPECT_FALSE(panes.contains("FinishedSizeHeight"));
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
