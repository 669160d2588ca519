#include <gtest/gtest.h>

#include <set>

#include "PrintOptionTestSupport.h"
#include "ppd/PaperSize.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(PaperSize, RecordGivesTypeNumberHeightAndWidthAsStrings) {
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("A4LEF"),
              (PlistDictionary{{"typeNum", "2"}, {"height", "119056"}, {"width", "168378"}}));
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("A4SEF"),
              (PlistDictionary{{"typeNum", "3"}, {"height", "168378"}, {"width", "119056"}}));
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("A3")->stringFor("typeNum", ""), "1");
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("Envchou2SEF"),
              (PlistDictionary{{"typeNum", "134"}, {"height", "157040"}, {"width", "67465"}}));
}

TEST(PaperSize, UnknownNamesHaveNoRecord) {
    for (const char* name : {"a4lef", "A4lef", "Custom", "NoChange", "", " A4LEF", "A4"})
        EXPECT_FALSE(PrintOptionConverter::getCepSizeFromPaperSizeType(name)) << name;
}

TEST(PaperSize, TableHoldsEverySizeOnceInTypeNumberOrder) {
    const auto sizes = PaperSize::all();
    ASSERT_EQ(sizes.size(), 65u);
    std::set<std::string_view> names;
    for (std::size_t index = 0; index < sizes.size(); ++index) {
        EXPECT_TRUE(names.insert(sizes[index].name).second) << sizes[index].name;
        if (index > 0) {
            EXPECT_LT(sizes[index - 1].typeNum, sizes[index].typeNum) << sizes[index].name;
        }
        EXPECT_EQ(PaperSize::find(sizes[index].name), &sizes[index]);
    }
}

// Long-edge-feed sheets lie across the feed; short-edge-feed and plain names stand up,
// except the sizes the press feeds across although their names carry no suffix.
TEST(PaperSize, LongEdgeFeedSizesAreWiderThanHigh) {
    const std::set<std::string_view> lyingWithoutSuffix{"A4Booklet", "B5Booklet", "A5Booklet", "85x110Booklet",
                                                        "260x180",   "A6Booklet", "B6Booklet", "260x190",
                                                        "16KaiLEFC"};
    for (const PaperSize& size : PaperSize::all()) {
        const bool lying = std::string_view(size.name).ends_with("LEF") || lyingWithoutSuffix.contains(size.name);
        if (lying) {
            EXPECT_LT(size.height, size.width) << size.name;
        } else {
            EXPECT_GE(size.height, size.width) << size.name;
        }
    }
}
