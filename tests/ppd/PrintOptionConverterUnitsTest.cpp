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

PlistDictionary creases(int count, std::initializer_list<const char*> positions) {
    PlistDictionary printOption{{"CreaseNum", std::to_string(count)}};
    int index = 1;
    for (const char* position : positions) {
        const std::string number = std::to_string(index++);
        printOption.set("CreasePosition" + number, position);
        printOption.set("CreaseDirection" + number, "Dir" + number);
        printOption.set("CreasePressureLevel" + number, "Level" + number);
    }
    return printOption;
}

Strings column(const PlistDictionary& printOption, const std::string& stem) {
    Strings values;
    for (int index = 1; index <= 5; ++index) values.push_back(printOption.stringFor(stem + std::to_string(index), "-"));
    return values;
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

TEST(PrintOptionConverterUnits, PlainEntryPointsConvertWithTheFlagAndPassNullThrough) {
    EXPECT_EQ(ConvertToCanonicalPpdKeyword(nullptr), nullptr);
    EXPECT_EQ(ConvertToInternalPpdKeyword(nullptr), nullptr);
    PlistDictionary printOption{{"PrintPositionFrontWidth", "10"}};
    EXPECT_EQ(ConvertToCanonicalPpdKeyword(&printOption), &printOption);
    EXPECT_EQ(printOption.stringFor("PrintPositionFrontWidth", ""), "5669");
    EXPECT_EQ(ConvertToInternalPpdKeyword(&printOption), &printOption);
    EXPECT_EQ(printOption.stringFor("PrintPositionFrontWidth", ""), "10.00");
}

// The creases are numbered from the other edge: each count reverses its first creases.
TEST(PrintOptionConverterCrease, EachCountReversesItsCreases) {
    const std::pair<int, Strings> expectations[] = {
        {1, {"1", "2", "3", "4", "5"}}, {2, {"2", "1", "3", "4", "5"}}, {3, {"3", "2", "1", "4", "5"}},
        {4, {"4", "3", "2", "1", "5"}}, {5, {"5", "4", "3", "2", "1"}}, {6, {"1", "2", "3", "4", "5"}}};
    for (const auto& [count, order] : expectations) {
        PlistDictionary printOption = creases(count, {"1", "2", "3", "4", "5"});
        Converter::swapCreaseKeyword(printOption);
        Strings directions, levels;
        for (const std::string& number : order) {
            directions.push_back("Dir" + number);
            levels.push_back("Level" + number);
        }
        // Without a sheet length the positions are only exchanged.
        EXPECT_EQ(column(printOption, "CreasePosition"), order) << count;
        EXPECT_EQ(column(printOption, "CreaseDirection"), directions) << count;
        EXPECT_EQ(column(printOption, "CreasePressureLevel"), levels) << count;
    }
    PlistDictionary measured = creases(3, {"30", "50", "75"});
    measured.set("ChgPrintPaperSizeLength", "100");
    Converter::swapCreaseKeyword(measured);
    EXPECT_EQ(column(measured, "CreasePosition"), (Strings{"25", "50", "70", "-", "-"}));
}

TEST(PrintOptionConverterCrease, MissingValuesAndCountsAndPositionsBeyondTheSheet) {
    // A pair is exchanged only when both values exist.
    PlistDictionary gap{{"CreaseNum", "4"}, {"CreasePosition1", "10"}, {"CreasePosition2", "20"}, {"CreasePosition3", "30"}};
    Converter::swapCreaseKeyword(gap);
    EXPECT_EQ(column(gap, "CreasePosition"), (Strings{"10", "30", "20", "-", "-"}));
    // A position beyond the sheet wraps around as unsigned.
    PlistDictionary beyond{{"CreaseNum", "1"}, {"CreasePosition1", "120"}, {"CreasePosition2", ""},
                           {"ChgPrintPaperSizeLength", "100"}};
    Converter::swapCreaseKeyword(beyond);
    EXPECT_EQ(column(beyond, "CreasePosition"), (Strings{"4294967276", "", "-", "-", "-"}));
    // Nothing happens without a crease count.
    const PlistDictionary original{{"CreaseNum", ""}, {"CreasePosition1", "10"}, {"CreasePosition2", "20"},
                                   {"ChgPrintPaperSizeLength", "100"}};
    PlistDictionary uncounted = original;
    Converter::swapCreaseKeyword(uncounted);
    EXPECT_EQ(uncounted, original);
    uncounted.erase("CreaseNum");
    Converter::swapCreaseKeyword(uncounted);
    EXPECT_EQ(uncounted.stringFor("CreasePosition1", ""), "10");
}

// Toward the press the positions are measured from the other edge last, in cep, after
// every length has been converted: on a 100 mm sheet the crease at 30 mm becomes
// 56693 - 17008 cep. Without the flag the sheet length stays in millimetres while creases
// are in cep, so the positions wrap around: that is what the press has always received.
TEST(PrintOptionConverterCrease, CanonicalDirectionMeasuresInCepAfterConverting) {
    PlistDictionary printOption = creases(2, {"30", "80"});
    printOption.set("ChgPrintPaperSizeLength", "100");
    EXPECT_EQ(valuesOf(canonical(printOption),
                       {"ChgPrintPaperSizeLength", "CreasePosition1", "CreasePosition2", "CreaseDirection1"}),
              (Strings{"56693", "11339", "39685", "Dir2"}));
    PlistDictionary unflagged = creases(1, {"30"});
    unflagged.set("ChgPrintPaperSizeLength", "100");
    EXPECT_EQ(valuesOf(canonical(unflagged, 0), {"ChgPrintPaperSizeLength", "CreasePosition1"}),
              (Strings{"100", std::to_string(4294967296ULL + 100 - 17008)}));
}

// Reading back exchanges and subtracts first, in cep, and only then converts to
// millimetres: the result has the two decimals of a converted length.
TEST(PrintOptionConverterCrease, InternalDirectionMeasuresInCepBeforeConverting) {
    PlistDictionary printOption = creases(2, {"45354", "17008"});
    printOption.set("ChgPrintPaperSizeLength", "56693");
    EXPECT_EQ(valuesOf(internal(printOption),
                       {"ChgPrintPaperSizeLength", "CreasePosition1", "CreasePosition2", "CreasePressureLevel1"}),
              (Strings{"100.00", "70.00", "20.00", "Level2"}));
}
