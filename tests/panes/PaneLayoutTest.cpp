#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "panes/PaneLayout.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

PlistDictionary control(const std::string& key) { return {{"class", "VORNUI"}, {"key", key}}; }

std::string upper(const std::string& text) {
    std::string result = text;
    for (char& character : result) character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return result;
}

}  // namespace

TEST(PaneLayout, BuildsTheTreeWithTheRoleInKeysLabelsAndIdentifiers) {
    const PlistDictionary page = {{"subviews", PlistArray{control("Density%@")}}};
    const PlistDictionary description = {
        {"subviews", PlistArray{control("Mode%@"),
                                PlistDictionary{{"class", "TabView"},
                                                {"tabs", PlistArray{PlistDictionary{{"label", "Side %@"},
                                                                                    {"identifier", "Tab%@"},
                                                                                    {"view", page}},
                                                                    PlistDictionary{{"label", "No view"}}}}},
                                PlistDictionary{{"class", "View"}, {"hidden", true}}, PlistValue("not a view")}}};
    auto root = PaneLayout::viewOfDescription(PlistValue(description), std::string("Back"), upper);
    ASSERT_TRUE(root);
    ASSERT_EQ(root->subviews().size(), 3u);
    EXPECT_EQ(root->subviews()[0]->className(), "VORNUI");
    EXPECT_EQ(root->subviews()[0]->toolTip(), "ModeBack");
    auto* tabs = dynamic_cast<TabViewNode*>(root->subviews()[1].get());
    ASSERT_TRUE(tabs);
    ASSERT_EQ(tabs->tabs().size(), 1u);
    EXPECT_EQ(tabs->tabs()[0].label, "SIDE BACK");
    EXPECT_EQ(tabs->tabs()[0].identifier, "TabBack");
    EXPECT_EQ(tabs->tabs()[0].view->subviews()[0]->toolTip(), "DensityBack");
    EXPECT_TRUE(root->subviews()[2]->isHiddenView());
    EXPECT_EQ(PaneLayout::withRole("Side %@ of %@", std::nullopt), "Side  of ");
    EXPECT_FALSE(PaneLayout::viewOfDescription(PlistValue("View"), std::nullopt, upper));
}

TEST(PaneLayout, StacksViewsTopToBottom) {
    const PlistDictionary description = {
        {"subviews", PlistArray{PlistDictionary{{"subviews", PlistArray{PlistDictionary{}}}}, PlistDictionary{}}}};
    auto root = PaneLayout::viewOfDescription(PlistValue(description), std::nullopt, upper);
    PaneLayout::layOut(*root);
    const auto& first = root->subviews()[0]->frame();
    const auto& second = root->subviews()[1]->frame();
    EXPECT_EQ(first.x, second.x);
    EXPECT_GT(second.y, first.y + first.height - 1);
    EXPECT_GT(first.height, second.height);
    EXPECT_EQ(root->frame().width, VORNUI::defaultWidth + 24);
    EXPECT_GT(root->frame().height, second.y + second.height);
}

TEST(PaneLayout, TreesNestedTooDeeplyAreCutOff) {
    DiagnosticLines diagnostics;
    PlistValue nested = PlistDictionary{{"class", "VORNUI"}, {"key", "Deepest"}};
    for (int level = 0; level < 40; ++level) nested = PlistDictionary{{"subviews", PlistArray{nested}}};
    auto root = PaneLayout::viewOfDescription(nested, std::nullopt, upper);
    ASSERT_TRUE(root);
    int depth = 0;
    for (const ViewNode* view = root.get(); !view->subviews().empty(); view = view->subviews()[0].get()) ++depth;
    EXPECT_EQ(depth, 16);
    EXPECT_TRUE(diagnostics.contains("nested too deeply"));
}
