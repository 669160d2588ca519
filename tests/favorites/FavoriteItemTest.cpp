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

// Up to 27 bytes (nine Japanese characters, not ten), not blank, none of / \ : * ? " < > |.
TEST(FavoriteItem, NamesHaveUpToTwentySevenBytesAndNoForbiddenCharacters) {
    OstrinTest::useProductStrings("en");
    EXPECT_FALSE(FavoriteItem::checkName(std::nullopt));
    for (const std::string& name : {std::string(27, 'n'), std::string("両面印刷の会議資料"), std::string(" Proofs 2 ")})
        EXPECT_FALSE(FavoriteItem::checkName(name)) << name;
    for (const std::string& name : {std::string(28, 'n'), std::string("両面印刷の会議資料集"), std::string(),
                                   std::string("   "), std::string("\t\u3000"), std::string("a/b"),
                                   std::string("a:b"), std::string("a\\b"), std::string("what?"), std::string("a|b"),
                                   std::string("\"q\""), std::string("<x>"), std::string("a*")})
        EXPECT_EQ(FavoriteItem::checkName(name), invalidName) << name;
}

// The English refusal is the save and manager dialogs' own test.
TEST(FavoriteItem, DefaultFavoriteNameIsReservedInEachLanguage) {
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
    EXPECT_FALSE(FavoriteItem::checkComment(std::string(252, 'c') + "あ"));
    EXPECT_TRUE(FavoriteItem::checkComment(std::string(253, 'c') + "あ"));
}

// Current settings, then the defaults, then by path when both have one, else by name, in
// plain character order (capitals before small letters).
TEST(FavoriteItem, SortsSpecialEntriesFirstThenByPathOrName) {
    OstrinTest::useProductStrings("en");
    std::vector<FavoriteItem> items{FavoriteItem("b"), FavoriteItem(FavoriteItem::defaultFavoriteName()),
                                    FavoriteItem("a"), FavoriteItem(FavoriteItem::currentSettingName())};
    std::sort(items.begin(), items.end(), [](const auto& x, const auto& y) { return x.compare(y) < 0; });
    std::vector<std::string> names;
    for (const auto& item : items) names.push_back(item.name());
    EXPECT_EQ(names, (std::vector<std::string>{"<Current Settings>", "Default Settings", "a", "b"}));
    FavoriteItem zeta("Zeta");
    zeta.setPath("/f/A.pqz");
    FavoriteItem alpha("Alpha");
    alpha.setPath("/f/B.pqz");
    EXPECT_TRUE(zeta.compare(alpha) < 0);
    alpha.setPath("");
    EXPECT_TRUE(alpha.compare(zeta) < 0);
    EXPECT_TRUE(FavoriteItem("Z").compare(FavoriteItem("a")) < 0);
    EXPECT_TRUE(FavoriteItem("a").compare(FavoriteItem("a")) == 0);
}
