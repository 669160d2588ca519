#include <gtest/gtest.h>

#include <set>

#include "PrintOptionTestSupport.h"
#include "ppd/PaperSize.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(PaperSize, RecordGivesTypeNumberHeightAndWidthAsStringsForExactNamesOnly) {
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("A4LEF"),
              (PlistDictionary{{"typeNum", "2"}, {"height", "119056"}, {"width", "168378"}}));
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("Envchou2SEF"),
              (PlistDictionary{{"typeNum", "134"}, {"height", "157040"}, {"width", "67465"}}));
    for (const char* name : {"a4lef", "A4lef", "Custom", "NoChange", "", " A4LEF", "A4"})
        EXPECT_FALSE(PrintOptionConverter::getCepSizeFromPaperSizeType(name)) << name;
}

// Names are unique (the first match wins). Long-edge-feed sheets lie across the feed;
// short-edge-feed and plain names stand up, except the sizes the press feeds across
// although their names carry no suffix.
TEST(PaperSize, EveryNameIsUniqueAndLongEdgeFeedSizesAreWiderThanHigh) {
    const std::set<std::string_view> lyingWithoutSuffix{"A4Booklet", "B5Booklet", "A5Booklet", "85x110Booklet", "260x180",
                                                        "A6Booklet", "B6Booklet", "260x190",   "16KaiLEFC"};
    std::set<std::string_view> names;
    for (const PaperSize& size : PaperSize::all()) {
        EXPECT_TRUE(names.insert(size.name).second) << size.name;
        const bool lying = std::string_view(size.name).ends_with("LEF") || lyingWithoutSuffix.contains(size.name);
        EXPECT_EQ(size.height < size.width, lying) << size.name;
    }
}
