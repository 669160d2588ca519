#include <gtest/gtest.h>

#include "settings_ui/DataSource.h"
#include "settings_ui/TabViewItem.h"
#include "settings_ui/TabViewNode.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

std::shared_ptr<ViewNode> pageWith(const std::shared_ptr<TabViewNode>& nested) {
    auto page = std::make_shared<ViewNode>();
    if (nested) page->addSubview(nested);
    return page;
}

std::shared_ptr<TabViewNode> tabs(std::vector<TabEntry> entries) {
    auto tabView = std::make_shared<TabViewNode>();
    for (auto& entry : entries) tabView->addTab(std::move(entry));
    return tabView;
}

// Settings window: Paper | Finishing (Main hidden, Staple, Fold, Crease split) | Color.
struct SettingsTabs {
    std::shared_ptr<TabViewNode> crease = tabs({{"Crease Mode", "", pageWith(nullptr)}, {"Crease Position", "", pageWith(nullptr)}});
    std::shared_ptr<TabViewNode> finishing = tabs({{"Main", "parent_main", pageWith(nullptr)},
                                                   {"Staple", "", pageWith(nullptr)},
                                                   {"Fold", "", pageWith(nullptr)},
                                                   {"Crease", "TabNotSupport", pageWith(crease)}});
    std::shared_ptr<TabViewNode> decorative = tabs({{"A", "", pageWith(nullptr)}});
    std::shared_ptr<TabViewNode> root = tabs({{"Paper", "", pageWith(nullptr)},
                                              {"Finishing", "", pageWith(finishing)},
                                              {"Color", "", pageWith(decorative)}});
    SettingsTabs() {
        decorative->setFocusRingType(TabViewNode::FocusRing::None);
        root->selectTabAtIndex(2);
        finishing->selectTabAtIndex(1);
    }
};

std::shared_ptr<TabViewItem> rootItem(const SettingsTabs& window, const std::string& label) {
    auto item = std::make_shared<TabViewItem>();
    item->setTabViewItem(label, window.root);
    return item;
}

}  // namespace

TEST(TabViewItem, ListsNestedTabsAndHidesTheMainPageWithoutChangingSelections) {
    SettingsTabs window;
    auto finishing = rootItem(window, "Finishing");
    const auto& children = finishing->children();
    ASSERT_TRUE(children);
    std::vector<std::string> shown;
    for (const auto& child : *children) shown.push_back(DataSource::objectValueForItem(child));
    EXPECT_EQ(shown, (std::vector<std::string>{"Staple", "Fold", "Crease Mode", "Crease Position"}));
    ASSERT_TRUE(finishing->child_main());
    EXPECT_TRUE(finishing->child_main()->isHidden());
    EXPECT_EQ((*children)[3]->titleName(), "Crease");
    EXPECT_EQ((*children)[3]->index(), 2);
    EXPECT_TRUE((*children)[3]->isLeafNode());
    EXPECT_EQ((*children)[0]->parent(), finishing);
    EXPECT_TRUE(window.finishing->isTabless());
    // Exploring keeps every selection.
    EXPECT_EQ(window.root->selectedIndex(), 2);
    EXPECT_EQ(window.finishing->selectedIndex(), 1);
    EXPECT_EQ(window.crease->selectedIndex(), 0);
}

TEST(TabViewItem, SelectingALeafSelectsItsWholeChain) {
    SettingsTabs window;
    auto finishing = rootItem(window, "Finishing");
    auto creasePosition = (*finishing->children())[3];
    creasePosition->selectme();
    EXPECT_EQ(window.root->selectedIndex(), 1);
    EXPECT_EQ(window.finishing->selectedIndex(), 3);
    EXPECT_EQ(window.crease->selectedIndex(), 1);
}

TEST(TabViewItem, PagesWithoutNavigableTabsHaveNoChildren) {
    SettingsTabs window;
    EXPECT_FALSE(rootItem(window, "Paper")->children());
    EXPECT_FALSE(rootItem(window, "Color")->children());
    EXPECT_TRUE(rootItem(window, "Color")->isLeafNode());
    auto copy = rootItem(window, "Finishing")->copy();
    EXPECT_EQ(copy->titleName(), "Finishing");
    EXPECT_EQ(copy->children()->size(), 4u);
}

TEST(DataSource, FirstRootQuestionAnswersNothingThenTheRootTabs) {
    SettingsTabs window;
    auto sheet = std::make_shared<ViewNode>();
    auto scroll = std::make_shared<ViewNode>();
    auto clip = std::make_shared<ViewNode>();
    auto outline = std::make_shared<ViewNode>();
    sheet->addSubview(std::make_shared<ViewNode>());
    sheet->addSubview(window.root);
    sheet->addSubview(scroll);
    scroll->addSubview(clip);
    clip->addSubview(outline);
    DataSource::locateRootTabView(*outline);
    EXPECT_EQ(DataSource::rootTabView(), window.root);

    DataSource source;
    EXPECT_EQ(source.numberOfChildrenOfItem(nullptr), 0u);
    EXPECT_EQ(source.numberOfChildrenOfItem(nullptr), 3u);
    auto finishing = source.child(1, nullptr);
    EXPECT_EQ(source.child(1, nullptr), finishing);
    EXPECT_TRUE(source.isItemExpandable(finishing));
    EXPECT_EQ(source.numberOfChildrenOfItem(finishing), 4u);
    EXPECT_EQ(DataSource::objectValueForItem(source.child(2, finishing)), "Crease Mode");
    EXPECT_FALSE(source.isItemExpandable(source.child(0, nullptr)));
    EXPECT_EQ(source.child(9, nullptr), nullptr);
    EXPECT_EQ(DataSource::objectValueForItem(nullptr), "item Unknown");
}
