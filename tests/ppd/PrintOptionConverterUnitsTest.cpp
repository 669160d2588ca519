#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

PlistDictionary allSetTo(std::initializer_list<const char*> keys, const char* value) {
    PlistDictionary printOption;
    for (const char* key : keys) printOption.set(key, value);
    return printOption;
}

}  // namespace

// Millimetres become whole cep; cep become millimetres with two decimals, rounded away from
// zero as decimals: the printed product 3.175000 rounds up, its binary value 3.17499... would not.
TEST(PrintOptionConverterUnits, MillimetresAndCepConvertWithDecimalRounding) {
    const std::pair<const char*, const char*> toCep[] = {{"210", "119055"}, {"297", "168378"}, {"0.5", "283"},
                                                         {"-1", "-567"},    {"0", "0"},           {"  12abc", "6803"},
                                                         {"abc", "0"}};
    for (const auto& [mm, cep] : toCep) EXPECT_EQ(Converter::convertMmToCep(mm), cep) << mm;
    const std::pair<const char*, const char*> toMm[] = {{"119055", "210.00"}, {"0", "0.00"},    {"-567", "-1.00"},
                                                        {"1", "0.00"},        {"1800", "3.18"}, {"1080", "1.91"},
                                                        {"-1800", "-3.18"}};
    for (const auto& [cep, mm] : toMm) EXPECT_EQ(Converter::convertCepToMm(cep), mm) << cep;
}

// Tenths offset from 100 %, rounded to one decimal first and then cut to the integer part:
// 1.96 -> 2.0 -> 2, 1.6 -> 1.
TEST(PrintOptionConverterUnits, PrintPositionMagnificationIsTenthsOffsetFromHundred) {
    const std::pair<const char*, const char*> toVorn[] = {{"105.5", "55"}, {"100", "0"},      {"0", "-1000"},
                                                          {"95.3", "-47"}, {"100.196", "2"},  {"100.16", "1"},
                                                          {"99.95", "0"},  {"99.804", "-2"}};
    for (const auto& [magnification, vorn] : toVorn) EXPECT_EQ(Converter::convertMagToVORN(magnification), vorn) << magnification;
    const std::pair<const char*, const char*> toMag[] = {{"0", "100.0"}, {"55", "105.5"}, {"-47", "95.3"}, {"abc", "100.0"}};
    for (const auto& [vorn, magnification] : toMag) EXPECT_EQ(Converter::convertVORNToMag(vorn), magnification) << vorn;
}

TEST(PrintOptionConverterUnits, MagnificationKeyIsScaledByTenBothWaysAndOnlyAsText) {
    PlistDictionary printOption{{"Magnification", "75.5"}};
    Converter::convertToCanonicalMagnification(printOption);
    EXPECT_EQ(printOption.stringFor("Magnification", ""), "755");
    Converter::convertToInternalMagnification(printOption);
    EXPECT_EQ(printOption.stringFor("Magnification", ""), "75.5");
    const std::pair<PlistValue, PlistValue> rounded[] = {
        {"33.35", "334"}, {"-0.25", "-3"}, {"", ""}, {PlistValue(100), PlistValue(100)}};
    for (const auto& [before, after] : rounded) {
        PlistDictionary other{{"Magnification", before}, {"Other", "1"}};
        Converter::convertToCanonicalMagnification(other);
        EXPECT_EQ(other, (PlistDictionary{{"Magnification", after}, {"Other", "1"}}));
    }
    PlistDictionary absent;
    Converter::convertToCanonicalMagnification(absent);
    Converter::convertToInternalMagnification(absent);
    EXPECT_TRUE(absent.empty());
}

TEST(PrintOptionConverterUnits, LineWidthsAreThousandthsAndColourReplacementsHundredths) {
    const std::initializer_list<const char*> replacements = {
        "SpTonerColorReplaceCyanFront", "SpTonerColorReplaceMagentaFront", "SpTonerColorReplaceYellowFront",
        "SpTonerColorReplaceBlackFront", "SpTonerColorReplaceCyanBack",    "SpTonerColorReplaceMagentaBack",
        "SpTonerColorReplaceYellowBack", "SpTonerColorReplaceBlackBack"};
    PlistDictionary printOption = allSetTo(replacements, "0.35");
    printOption.set("HairLineWarningPoint", "0.1");
    printOption.set("MinimumLineWidthValue", "1.5");
    printOption.set("SpTonerColorReplaceBlackBack", "1");
    printOption.set("SpTonerColorReplaceMagentaBack", "");
    const PlistDictionary press = canonical(printOption);
    EXPECT_EQ(valuesOf(press, {"HairLineWarningPoint", "MinimumLineWidthValue", "SpTonerColorReplaceBlackBack",
                               "SpTonerColorReplaceMagentaBack"}),
              (Strings{"100", "1500", "100", ""}));
    const PlistDictionary panes = internal(press);
    EXPECT_EQ(valuesOf(panes, {"HairLineWarningPoint", "MinimumLineWidthValue", "SpTonerColorReplaceBlackBack",
                               "SpTonerColorReplaceMagentaBack"}),
              (Strings{"0.100", "1.500", "1.00", ""}));
    for (const char* key : replacements) {
        if (std::string_view(key).ends_with("lackBack") || std::string_view(key).ends_with("agentaBack")) continue;
        EXPECT_EQ(press.stringFor(key, ""), "35") << key;
        EXPECT_EQ(panes.stringFor(key, ""), "0.35") << key;
    }
}

// Finishing lengths always become cep; custom sizes, print positions and their
// magnifications only with the flag; reading back converts them whatever the flag was.
TEST(PrintOptionConverterUnits, WhichLengthsBecomeCepDependsOnTheFlag) {
    const std::initializer_list<const char*> finishing = {
        "TopAndTailTrimFinishSize", "TopAndTailTrimRearCutSize", "TopAndTailTrimFrontCutSize", "TrimmerFinishedSize",
        "TrimmerCutSize", "CreasePosition1", "CreasePosition5"};
    const std::initializer_list<const char*> lengths = {
        "ChgPrintPaperSizeLength", "ChgPrintPaperSizeWidth", "ImpositionFormPositionWidth", "ImpositionFormPositionLength",
        "FormPositionWidth", "FormPositionLength", "PrintPositionFrontWidth", "PrintPositionFrontLength",
        "PrintPositionBackWidth", "PrintPositionBackLength"};
    const std::initializer_list<const char*> magnifications = {"PrintPositionFrontWidthMag", "PrintPositionFrontLengthMag",
                                                               "PrintPositionBackWidthMag", "PrintPositionBackLengthMag"};
    for (int flag : {0, 1}) {
        PlistDictionary printOption = allSetTo(finishing, "210");
        for (const char* key : lengths) printOption.set(key, "10");
        for (const char* key : magnifications) printOption.set(key, "105.5");
        const PlistDictionary press = canonical(printOption, flag);
        EXPECT_EQ(valuesOf(press, finishing), Strings(finishing.size(), "119055")) << flag;
        EXPECT_EQ(valuesOf(press, lengths), Strings(lengths.size(), flag ? "5669" : "10")) << flag;
        EXPECT_EQ(valuesOf(press, magnifications), Strings(magnifications.size(), flag ? "55" : "105.5")) << flag;
        if (!flag) continue;
        const PlistDictionary panes = internal(press);
        EXPECT_EQ(valuesOf(panes, finishing), Strings(finishing.size(), "210.00"));
        EXPECT_EQ(valuesOf(panes, lengths), Strings(lengths.size(), "10.00"));
        EXPECT_EQ(valuesOf(panes, magnifications), Strings(magnifications.size(), "105.5"));
    }
    const PlistDictionary zero = internal({{"PrintPositionFrontWidthMag", "0"}, {"PrintPositionBackLengthMag", "-25"}});
    EXPECT_EQ(valuesOf(zero, {"PrintPositionFrontWidthMag", "PrintPositionBackLengthMag"}), (Strings{"100.0", "97.5"}));
}
