#include <gtest/gtest.h>

#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using Converter = PrintOptionConverter;

namespace {

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

std::vector<std::string> valuesOf(const PlistDictionary& printOption, const char* stem) {
    std::vector<std::string> values;
    for (int index = 1; index <= 5; ++index)
        values.push_back(printOption.stringFor(stem + std::to_string(index), "-"));
    return values;
}

}  // namespace

TEST(PrintOptionConverterCrease, ThreeCreasesSwapFirstAndLastThenMeasureFromTheOtherEdge) {
    PlistDictionary printOption = creases(3, {"30", "50", "70"});
    printOption.set("ChgPrintPaperSizeLength", "100");
    Converter::swapCreaseKeyword(printOption);
    EXPECT_EQ(valuesOf(printOption, "CreasePosition"), (std::vector<std::string>{"30", "50", "70", "-", "-"}));
    EXPECT_EQ(valuesOf(printOption, "CreaseDirection"),
              (std::vector<std::string>{"Dir3", "Dir2", "Dir1", "-", "-"}));
    EXPECT_EQ(valuesOf(printOption, "CreasePressureLevel"),
              (std::vector<std::string>{"Level3", "Level2", "Level1", "-", "-"}));
}

TEST(PrintOptionConverterCrease, EachCountExchangesItsPairs) {
    const std::pair<int, std::vector<std::string>> expectations[] = {
        {1, {"Dir1", "Dir2", "Dir3", "Dir4", "Dir5"}},
        {2, {"Dir2", "Dir1", "Dir3", "Dir4", "Dir5"}},
        {3, {"Dir3", "Dir2", "Dir1", "Dir4", "Dir5"}},
        {4, {"Dir4", "Dir3", "Dir2", "Dir1", "Dir5"}},
        {5, {"Dir5", "Dir4", "Dir3", "Dir2", "Dir1"}},
        {6, {"Dir1", "Dir2", "Dir3", "Dir4", "Dir5"}},
    };
    for (const auto& [count, directions] : expectations) {
        PlistDictionary printOption = creases(count, {"1", "2", "3", "4", "5"});
        Converter::swapCreaseKeyword(printOption);
        EXPECT_EQ(valuesOf(printOption, "CreaseDirection"), directions) << count;
        // Without a sheet length the positions are only exchanged.
        std::vector<std::string> positions;
        for (const std::string& direction : directions) positions.push_back(direction.substr(3));
        EXPECT_EQ(valuesOf(printOption, "CreasePosition"), positions) << count;
    }
}

TEST(PrintOptionConverterCrease, APairIsExchangedOnlyWhenBothValuesExist) {
    PlistDictionary printOption{{"CreaseNum", "4"}, {"CreasePosition1", "10"}, {"CreasePosition2", "20"},
                                {"CreasePosition3", "30"}};
    Converter::swapCreaseKeyword(printOption);
    EXPECT_EQ(valuesOf(printOption, "CreasePosition"), (std::vector<std::string>{"10", "30", "20", "-", "-"}));
}

TEST(PrintOptionConverterCrease, APositionBeyondTheSheetWrapsAroundAsUnsigned) {
    PlistDictionary printOption{{"CreaseNum", "1"}, {"CreasePosition1", "120"}, {"CreasePosition2", ""},
                                {"ChgPrintPaperSizeLength", "100"}};
    Converter::swapCreaseKeyword(printOption);
    EXPECT_EQ(printOption.stringFor("CreasePosition1", ""), "4294967276");
    EXPECT_EQ(printOption.stringFor("CreasePosition2", "-"), "");
}

TEST(PrintOptionConverterCrease, NothingHappensWithoutACreaseCount) {
    const PlistDictionary original{{"CreaseNum", ""}, {"CreasePosition1", "10"}, {"CreasePosition2", "20"},
                                   {"ChgPrintPaperSizeLength", "100"}};
    PlistDictionary printOption = original;
    Converter::swapCreaseKeyword(printOption);
    EXPECT_EQ(printOption, original);
    printOption.erase("CreaseNum");
    Converter::swapCreaseKeyword(printOption);
    EXPECT_EQ(printOption.stringFor("CreasePosition1", ""), "10");
}

// The positions are measured from the other edge last, in cep, after every length has
// been converted: on a 100 mm sheet the crease at 30 mm becomes 56693 - 17008 cep.
TEST(PrintOptionConverterCrease, CanonicalDirectionMeasuresInCepAfterConverting) {
    PlistDictionary printOption = creases(2, {"30", "80"});
    printOption.set("ChgPrintPaperSizeLength", "100");
    Converter::convertToCanonicalPpdKeyword(printOption, 1);
    EXPECT_EQ(printOption.stringFor("ChgPrintPaperSizeLength", ""), "56693");
    EXPECT_EQ(printOption.stringFor("CreasePosition1", ""), "11339");
    EXPECT_EQ(printOption.stringFor("CreasePosition2", ""), "39685");
    EXPECT_EQ(printOption.stringFor("CreaseDirection1", ""), "Dir2");
}

// Without the flag the sheet length stays in millimetres while creases are in cep, so
// the positions wrap around: that is what the press has always received then.
TEST(PrintOptionConverterCrease, WithoutTheFlagTheLengthStaysInMillimetres) {
    PlistDictionary printOption = creases(1, {"30"});
    printOption.set("ChgPrintPaperSizeLength", "100");
    Converter::convertToCanonicalPpdKeyword(printOption, 0);
    EXPECT_EQ(printOption.stringFor("ChgPrintPaperSizeLength", ""), "100");
    EXPECT_EQ(printOption.stringFor("CreasePosition1", ""), std::to_string(4294967296ULL + 100 - 17008));
}

// Reading back exchanges and subtracts first, in cep, and only then converts to
// millimetres: the result has the two decimals of a converted length.
TEST(PrintOptionConverterCrease, InternalDirectionMeasuresInCepBeforeConverting) {
    PlistDictionary printOption = creases(2, {"45354", "17008"});
    printOption.set("ChgPrintPaperSizeLength", "56693");
    Converter::convertToInternalPpdKeyword(printOption);
    EXPECT_EQ(printOption.stringFor("ChgPrintPaperSizeLength", ""), "100.00");
    EXPECT_EQ(printOption.stringFor("CreasePosition1", ""), "70.00");
    EXPECT_EQ(printOption.stringFor("CreasePosition2", ""), "20.00");
    EXPECT_EQ(printOption.stringFor("CreasePressureLevel1", ""), "Level2");
}
