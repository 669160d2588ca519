#include <gtest/gtest.h>

#include "core/ControlHelpers.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(ControlTitle, LabelSuffixIsDeleted) {
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Paper Type:"), "Paper Type");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Papiertyp : "), "Papiertyp");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("用紙種類："), "用紙種類");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Time 10:30"), "Time 10:30");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Staple "), "Staple ");
    EXPECT_EQ(stringByDeletingControlTitleSuffix(":"), "");
}

TEST(SetIfObjectForKey, StoresOnlyPresentValues) {
    PlistDictionary settings{{"Staple", "None"}};
    const PlistValue saddle("Saddle");
    EXPECT_TRUE(SetIfObjectForKey(settings, &saddle, "Staple"));
    EXPECT_FALSE(SetIfObjectForKey(settings, nullptr, "Fold"));
    const PlistValue nothing;
    EXPECT_FALSE(SetIfObjectForKey(settings, &nothing, "Punch"));
    EXPECT_EQ(settings, (PlistDictionary{{"Staple", "Saddle"}}));
}
