#include <gtest/gtest.h>

#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using Converter = PrintOptionConverter;

TEST(PrintOptionConverterUnits, MillimetresBecomeWholeCep) {
    EXPECT_EQ(Converter::convertMmToCep("210"), "119055");
    EXPECT_EQ(Converter::convertMmToCep("297"), "168378");
    EXPECT_EQ(Converter::convertMmToCep("0.5"), "283");
    EXPECT_EQ(Converter::convertMmToCep("-1"), "-567");
    EXPECT_EQ(Converter::convertMmToCep("0"), "0");
    EXPECT_EQ(Converter::convertMmToCep("  12abc"), "6803");
    EXPECT_EQ(Converter::convertMmToCep("abc"), "0");
}

TEST(PrintOptionConverterUnits, CepBecomeMillimetresWithTwoDecimals) {
    EXPECT_EQ(Converter::convertCepToMm("119055"), "210.00");
    EXPECT_EQ(Converter::convertCepToMm("0"), "0.00");
    EXPECT_EQ(Converter::convertCepToMm("-567"), "-1.00");
    EXPECT_EQ(Converter::convertCepToMm("1"), "0.00");
}

// The printed product 3.175000 rounds up as a decimal; its binary value 3.17499... would not.
TEST(PrintOptionConverterUnits, HalfwayMillimetresRoundAwayFromZeroAsDecimals) {
    EXPECT_EQ(Converter::convertCepToMm("1800"), "3.18");
    EXPECT_EQ(Converter::convertCepToMm("1080"), "1.91");
    EXPECT_EQ(Converter::convertCepToMm("-1800"), "-3.18");
}

TEST(PrintOptionConverterUnits, PrintPositionMagnificationIsTenthsOffsetFromHundred) {
    EXPECT_EQ(Converter::convertMagToVORN("105.5"), "55");
    EXPECT_EQ(Converter::convertMagToVORN("100"), "0");
    EXPECT_EQ(Converter::convertMagToVORN("0"), "-1000");
    EXPECT_EQ(Converter::convertMagToVORN("95.3"), "-47");
    EXPECT_EQ(Converter::convertVORNToMag("0"), "100.0");
    EXPECT_EQ(Converter::convertVORNToMag("55"), "105.5");
    EXPECT_EQ(Converter::convertVORNToMag("-47"), "95.3");
    EXPECT_EQ(Converter::convertVORNToMag("abc"), "100.0");
}

// Rounded to one decimal first, then cut to the integer part: 1.96 -> 2.0 -> 2, 1.6 -> 1.
TEST(PrintOptionConverterUnits, MagnificationRoundsToOneDecimalBeforeTakingTheIntegerPart) {
    EXPECT_EQ(Converter::convertMagToVORN("100.196"), "2");
    EXPECT_EQ(Converter::convertMagToVORN("100.16"), "1");
    EXPECT_EQ(Converter::convertMagToVORN("99.95"), "0");
    EXPECT_EQ(Converter::convertMagToVORN("99.804"), "-2");
}

TEST(PrintOptionConverterUnits, MagnificationKeyIsScaledByTenBothWays) {
    PlistDictionary printOption{{"Magnification", "75.5"}};
    Converter::convertToCanonicalMagnification(printOption);
    EXPECT_EQ(printOption.stringFor("Magnification", ""), "755");
    Converter::convertToInternalMagnification(printOption);
    EXPECT_EQ(printOption.stringFor("Magnification", ""), "75.5");

    PlistDictionary rounded{{"Magnification", "33.35"}, {"Other", "1"}};
    Converter::convertToCanonicalMagnification(rounded);
    EXPECT_EQ(rounded, (PlistDictionary{{"Magnification", "334"}, {"Other", "1"}}));
    PlistDictionary negative{{"Magnification", "-0.25"}};
    Converter::convertToCanonicalMagnification(negative);
    EXPECT_EQ(negative.stringFor("Magnification", ""), "-3");
}

TEST(PrintOptionConverterUnits, AbsentOrEmptyMagnificationIsLeftAlone) {
    PlistDictionary empty{{"Magnification", ""}};
    Converter::convertToCanonicalMagnification(empty);
    Converter::convertToInternalMagnification(empty);
    EXPECT_EQ(empty, (PlistDictionary{{"Magnification", ""}}));
    PlistDictionary absent;
    Converter::convertToCanonicalMagnification(absent);
    EXPECT_TRUE(absent.empty());
    PlistDictionary number{{"Magnification", 100}};
    Converter::convertToCanonicalMagnification(number);
    EXPECT_EQ(number, (PlistDictionary{{"Magnification", 100}}));
}

TEST(PrintOptionConverterUnits, LineWidthsAreThousandthsAndColourReplacementsHundredths) {
    PlistDictionary printOption{{"HairLineWarningPoint", "0.1"},
                                {"MinimumLineWidthValue", "1.5"},
                                {"SpTonerColorReplaceCyanFront", "0.35"},
                                {"SpTonerColorReplaceBlackBack", "1"},
                                {"SpTonerColorReplaceMagentaBack", ""}};
    Converter::convertToCanonicalPpdKeyword(printOption, 1);
    EXPECT_EQ(printOption.stringFor("HairLineWarningPoint", ""), "100");
    EXPECT_EQ(printOption.stringFor("MinimumLineWidthValue", ""), "1500");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceCyanFront", ""), "35");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceBlackBack", ""), "100");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceMagentaBack", "absent"), "");

    Converter::convertToInternalPpdKeyword(printOption);
    EXPECT_EQ(printOption.stringFor("HairLineWarningPoint", ""), "0.100");
    EXPECT_EQ(printOption.stringFor("MinimumLineWidthValue", ""), "1.500");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceCyanFront", ""), "0.35");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceBlackBack", ""), "1.00");
    EXPECT_EQ(printOption.stringFor("SpTonerColorReplaceMagentaBack", "absent"), "");
}

TEST(PrintOptionConverterUnits, EveryColourReplacementKeyIsScaled) {
    const char* keys[] = {"SpTonerColorReplaceCyanFront", "SpTonerColorReplaceMagentaFront",
                          "SpTonerColorReplaceYellowFront", "SpTonerColorReplaceBlackFront",
                          "SpTonerColorReplaceCyanBack", "SpTonerColorReplaceMagentaBack",
                          "SpTonerColorReplaceYellowBack", "SpTonerColorReplaceBlackBack"};
    PlistDictionary printOption;
    for (const char* key : keys) printOption.set(key, "0.5");
    Converter::convertToCanonicalPpdKeyword(printOption, 1);
    for (const char* key : keys) EXPECT_EQ(printOption.stringFor(key, ""), "50") << key;
    Converter::convertToInternalPpdKeyword(printOption);
    for (const char* key : keys) EXPECT_EQ(printOption.stringFor(key, ""), "0.50") << key;
}

TEST(PrintOptionConverterUnits, FinishingLengthsAlwaysBecomeCep) {
    const char* keys[] = {"TopAndTailTrimFinishSize", "TopAndTailTrimRearCutSize", "TopAndTailTrimFrontCutSize",
                          "TrimmerFinishedSize", "TrimmerCutSize", "CreasePosition1", "CreasePosition5"};
    for (int flag : {0, 1}) {
        PlistDictionary printOption;
        for (const char* key : keys) printOption.set(key, "210");
        Converter::convertToCanonicalPpdKeyword(printOption, flag);
        for (const char* key : keys) EXPECT_EQ(printOption.stringFor(key, ""), "119055") << key << flag;
        Converter::convertToInternalPpdKeyword(printOption);
        for (const char* key : keys) EXPECT_EQ(printOption.stringFor(key, ""), "210.00") << key << flag;
    }
}

TEST(PrintOptionConverterUnits, CustomSizesAndPrintPositionsBecomeCepOnlyWithTheFlag) {
    const char* lengths[] = {"ChgPrintPaperSizeLength", "ChgPrintPaperSizeWidth", "ImpositionFormPositionWidth",
                             "ImpositionFormPositionLength", "FormPositionWidth", "FormPositionLength",
                             "PrintPositionFrontWidth", "PrintPositionFrontLength", "PrintPositionBackWidth",
                             "PrintPositionBackLength"};
    const char* magnifications[] = {"PrintPositionFrontWidthMag", "PrintPositionFrontLengthMag",
                                    "PrintPositionBackWidthMag", "PrintPositionBackLengthMag"};
    PlistDictionary unflagged;
    for (const char* key : lengths) unflagged.set(key, "10");
    for (const char* key : magnifications) unflagged.set(key, "105.5");
    PlistDictionary flagged = unflagged;

    Converter::convertToCanonicalPpdKeyword(unflagged, 0);
    for (const char* key : lengths) EXPECT_EQ(unflagged.stringFor(key, ""), "10") << key;
    for (const char* key : magnifications) EXPECT_EQ(unflagged.stringFor(key, ""), "105.5") << key;

    Converter::convertToCanonicalPpdKeyword(flagged, 1);
    for (const char* key : lengths) EXPECT_EQ(flagged.stringFor(key, ""), "5669") << key;
    for (const char* key : magnifications) EXPECT_EQ(flagged.stringFor(key, ""), "55") << key;

    // Reading back converts them whatever the flag was.
    Converter::convertToInternalPpdKeyword(flagged);
    for (const char* key : lengths) EXPECT_EQ(flagged.stringFor(key, ""), "10.00") << key;
    for (const char* key : magnifications) EXPECT_EQ(flagged.stringFor(key, ""), "105.5") << key;
}

TEST(PrintOptionConverterUnits, PrintPositionMagnificationZeroReadsAsHundred) {
    PlistDictionary printOption{{"PrintPositionFrontWidthMag", "0"}, {"PrintPositionBackLengthMag", "-25"}};
    Converter::convertToInternalPpdKeyword(printOption);
    EXPECT_EQ(printOption.stringFor("PrintPositionFrontWidthMag", ""), "100.0");
    EXPECT_EQ(printOption.stringFor("PrintPositionBackLengthMag", ""), "97.5");
}
