#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
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

Strings column(const PlistDictionary& printOption, const std::string& stem) {
    Strings values;
    for (int index = 1; index <= 5; ++index) values.push_back(printOption.stringFor(stem + std::to_string(index), "-"));
    return values;
}

}  // namespace

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
