#include <gtest/gtest.h>

#include <algorithm>

#include "FavoriteTestSupport.h"
#include "favorites/FavoriteItem.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string invalidName =
    "A favorite name must have 1 to 27 bytes, must not be blank and must not "
    "contain any of these characters: / \\ : * ? \" < > |";

}  // namespace

TEST(FavoriteItem, AcceptsNamesUpToTwentySevenBytes) {
    OstrinTest::useProductStrings("en");
    EXPECT_FALSE(FavoriteItem::checkName(std::string(27, 'n')));
    EXPECT_EQ(FavoriteItem::checkName(std::string(28, 'n')), invalidName);
    // Nine Japanese characters are 27 bytes, ten are 30.
    EXPECT_FALSE(FavoriteItem::checkName("両面印刷の会議資料"));
    EXPECT_TRUE(FavoriteItem::checkName("両面印刷の会議資料集"));
    EXPECT_FALSE(FavoriteItem::checkName(std::nullopt));
}

TEST(FavoriteItem, RefusesEmptyBlankAndForbiddenCharacters) {
    OstrinTest::useProductStrings("en");
    EXPECT_EQ(FavoriteItem::checkName(""), invalidName);
    EXPECT_EQ(FavoriteItem::checkName("   "), invalidName);
    EXPECT_EQ(FavoriteItem::checkName("\t\u3000"), invalidName);
    for (const char* name : {"a/b", "a:b", "a\\b", "what?", "a|b", "\"q\"", "<x>", "a*"})
        EXPECT_EQ(FavoriteItem::checkName(name), invalidName) << name;
    EXPECT_FALSE(FavoriteItem::checkName(" Proofs 2 "));
}

TEST(FavoriteItem, DefaultFavoriteNameIsReservedInEachLanguage) {
    OstrinTest::useProductStrings("en");
    EXPECT_EQ(FavoriteItem::checkName("Default Settings"),
              "This name belongs to the default settings. Please choose another name.");
    OstrinTest::useProductStrings("de-DE");
    EXPECT_TRUE(FavoriteItem::isEqualToDefaultFavoriteName("Standardeinstellungen"));
    EXPECT_FALSE(FavoriteItem::checkName("Default Settings"));
    OstrinTest::useProductStrings("ja");
    EXPECT_EQ(FavoriteItem::checkName("標準設定"),
              "この名前は標準設定に使われています。別の名前を入力してください。");
}

TEST(FavoriteItem, CommentsUpTo255Bytes) {
    OstrinTest::useProductStrings("en");
    EXPECT_FALSE(FavoriteItem::checkComment(std::string(255, 'c')));
    EXPECT_FALSE(FavoriteItem::checkComment(std::nullopt));
    EXPECT_EQ(FavoriteItem::checkComment(std::string(256, 'c')),
              "A comment must not be longer than 255 bytes.");
    EXPECT_FALSE(FavoriteItem::checkComment(std::string(252, 'c') + "あ"));
    EXPECT_TRUE(FavoriteItem::checkComment(std::string(253, 'c') + "あ"));
}

TEST(FavoriteItem, SortsSpecialEntriesFirstThenByPathOrName) {
    OstrinTest::useProductStrings("en");
    std::vector<FavoriteItem> items{FavoriteItem("b"), FavoriteItem(FavoriteItem::defaultFavoriteName()),
                                    FavoriteItem("a"), FavoriteItem(FavoriteItem::currentSettingName())};
    std::sort(items.begin(), items.end(), [](const auto& x, const auto& y) { return x.compare(y) < 0; });
    std::vector<std::string> names;
    for (const auto& item : items) names.push_back(item.name());
    EXPECT_EQ(names, (std::vector<std::string>{"<Current Settings>", "Default Settings", "a", "b"}));
}

TEST(FavoriteItem, PathsDecideOverNamesWhenBothHaveOne) {
    FavoriteItem zeta("Zeta");
    zeta.setPath("/f/A.pqz");
    FavoriteItem alpha("Alpha");
    alpha.setPath("/f/B.pqz");
    EXPECT_TRUE(zeta.compare(alpha) < 0);
    alpha.setPath("");
    EXPECT_TRUE(alpha.compare(zeta) < 0);
    // Plain character order: capitals before small letters.
    EXPECT_TRUE(FavoriteItem("Z").compare(FavoriteItem("a")) < 0);
    EXPECT_TRUE(FavoriteItem("a").compare(FavoriteItem("a")) == 0);
}
