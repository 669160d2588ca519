#include <gtest/gtest.h>

#include <map>

#include "settings_ui/LayoutUtil.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// A pane column: a title, a row that the rules hide, two rows below it, and a note that
// sits beside the last row and reaches lower than it. Added out of order on purpose.
struct Pane {
    std::shared_ptr<ViewNode> root = std::make_shared<ViewNode>();
    std::map<std::string, std::shared_ptr<ViewNode>> views;

    Pane() {
        add("last", {0, 90, 200, 24});
        add("title", {0, 0, 300, 24});
        add("note", {220, 90, 120, 40});
        add("hidden", {0, 30, 300, 24});
        add("middle", {0, 60, 300, 24});
        views["hidden"]->setHiddenView(true);
    }
    void add(const std::string& name, ViewFrame frame) {
        auto view = std::make_shared<ViewNode>();
        view->setFrame(frame);
        root->addSubview(view);
        views[name] = view;
    }
    std::vector<std::string> names(const LayoutUtil::Views& list) const {
        std::vector<std::string> result;
        for (const auto& view : list)
            for (const auto& [name, each] : views)
                if (each == view) result.push_back(name);
        return result;
    }
};

using Names = std::vector<std::string>;

}  // namespace

TEST(LayoutUtil, VisibleViewsAreOrderedByTheirBottomEdgeAndChosenBelowTheirTargets) {
    Pane pane;
    EXPECT_EQ(pane.names(LayoutUtil::visibleSubViews(pane.root.get())), (Names{"title", "middle", "last", "note"}));
    EXPECT_TRUE(LayoutUtil::visibleSubViews(nullptr).empty());
    const ViewNode* title = pane.views["title"].get();
    EXPECT_EQ(pane.names(LayoutUtil::visibleSouthViews(pane.root.get(), title)), (Names{"middle", "last", "note"}));
    EXPECT_EQ(pane.names(LayoutUtil::visibleRangeViews(pane.root.get(), title, pane.views["last"].get())),
              (Names{"middle", "last"}));
    EXPECT_EQ(pane.names(LayoutUtil::visibleSouthViews(pane.root.get(), pane.views["middle"].get())),
              (Names{"last", "note"}));
    EXPECT_EQ(pane.names(LayoutUtil::visibleSouthViews(pane.root.get(), nullptr)).size(), 4u);
}

TEST(LayoutUtil, ClosingUpMovesTheViewsBelowAHiddenOneTogether) {
    Pane pane;
    const auto below = LayoutUtil::visibleSouthViews(pane.root.get(), pane.views["title"].get());
    EXPECT_DOUBLE_EQ(LayoutUtil::closeViewsToView(below, pane.views["title"].get(), 6), -30);
    EXPECT_EQ(pane.views["middle"]->frame(), (ViewFrame{0, 30, 300, 24}));
    EXPECT_EQ(pane.views["last"]->frame(), (ViewFrame{0, 60, 200, 24}));
    EXPECT_EQ(pane.views["note"]->frame(), (ViewFrame{220, 60, 120, 40}));
    EXPECT_EQ(pane.views["hidden"]->frame(), (ViewFrame{0, 30, 300, 24}));
    EXPECT_DOUBLE_EQ(LayoutUtil::closeViewsToView({}, pane.views["title"].get(), 6), 0);
    EXPECT_DOUBLE_EQ(LayoutUtil::closeViewsToView(below, nullptr, 6), 0);
}

TEST(LayoutUtil, MovingShiftsEveryFrame) {
    Pane pane;
    LayoutUtil::moveViews({pane.views["title"], pane.views["note"]}, 8, -2);
    EXPECT_EQ(pane.views["title"]->frame(), (ViewFrame{8, -2, 300, 24}));
    EXPECT_EQ(pane.views["note"]->frame(), (ViewFrame{228, 88, 120, 40}));
}
