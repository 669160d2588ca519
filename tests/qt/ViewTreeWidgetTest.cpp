#include <gtest/gtest.h>

#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "QtTestSupport.h"
#include "qt/ViewTreeWidget.h"
#include "settings_ui/LayoutUtil.h"
#include "settings_ui/TabViewNode.h"

using namespace QtWidgetTest;

namespace {

std::shared_ptr<ViewNode> viewAt(ViewFrame frame) {
    auto view = std::make_shared<ViewNode>();
    view->setFrame(frame);
    return view;
}

std::shared_ptr<VORNUI> controlAt(const std::string& keyword, ViewFrame frame) {
    auto control = buildControl(keyword);
    control->setFrame(frame);
    return control;
}

// A pane: a tab container with two pages of controls, and a note below it.
struct Pane {
    std::shared_ptr<ViewNode> root = viewAt({0, 0, 520, 400});
    std::shared_ptr<TabViewNode> tabs = std::make_shared<TabViewNode>();
    std::shared_ptr<VORNUI> staple = controlAt("StapleMode", {12, 8, 480, 48});
    std::shared_ptr<VORNUI> zoom = controlAt("Zoom", {12, 60, 480, 48});
    std::shared_ptr<VORNUI> order = controlAt("OutputOrder", {12, 8, 480, 84});
    std::shared_ptr<VORNUI> note = controlAt("PrintBlankPages", {0, 330, 480, 24});

    Pane() {
        tabs->setFrame({0, 0, 520, 320});
        auto finishing = viewAt({0, 0, 500, 280});
        finishing->addSubview(staple);
        finishing->addSubview(zoom);
        auto output = viewAt({0, 0, 500, 280});
        output->addSubview(order);
        tabs->addTab({"Finishing", "finishing", finishing});
        tabs->addTab({"Output", "output", output});
        root->addSubview(tabs);
        root->addSubview(note);
    }
};

}  // namespace

TEST(ViewTreeWidget, ControlsSitAtTheirFramesInsideTheirPages) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    auto* staple = qobject_cast<VORNUIWidget*>(tree.widgetFor(pane.staple.get()));
    ASSERT_TRUE(staple);
    EXPECT_EQ(staple->control(), pane.staple);
    EXPECT_EQ(staple->geometry().topLeft(), QPoint(12, 8));
    EXPECT_EQ(tree.widgetFor(pane.zoom.get())->geometry().topLeft(), QPoint(12, 60));
    EXPECT_EQ(tree.widgetFor(pane.note.get())->geometry().topLeft(), QPoint(0, 330));
    EXPECT_EQ(tree.sizeHint(), QSize(520, 400));
    EXPECT_FALSE(tree.widgetFor(buildControl("Zoom").get()));
}

TEST(ViewTreeWidget, TabContainersBecomeTabWidgetsThatSelectInBothDirections) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tree));
    auto* tabs = qobject_cast<QTabWidget*>(tree.widgetFor(pane.tabs.get()));
    ASSERT_TRUE(tabs);
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(1), "Output");
    EXPECT_EQ(tabs->widget(1), tree.widgetFor(pane.order->superview()));
    EXPECT_EQ(tabs->currentIndex(), 0);

    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(pane.tabs->selectedIndex(), 1);
    EXPECT_TRUE(tree.widgetFor(pane.order.get())->isVisible());
    pane.tabs->selectTabWithLabel("Finishing");
    tree.refresh();
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(tree.widgetFor(pane.staple.get())->isVisible());
}

TEST(ViewTreeWidget, TablessContainersStackTheirPages) {
    Pane pane;
    pane.tabs->setTabless(true);
    pane.tabs->selectTabAtIndex(1);
    ViewTreeWidget tree(pane.root);
    auto* stack = qobject_cast<QStackedWidget*>(tree.widgetFor(pane.tabs.get()));
    ASSERT_TRUE(stack);
    EXPECT_EQ(stack->count(), 2);
    EXPECT_EQ(stack->currentIndex(), 1);
    stack->setCurrentIndex(0);
    EXPECT_EQ(pane.tabs->selectedIndex(), 0);
}

TEST(ViewTreeWidget, RefreshShowsViewsTheEngineClosedUp) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tree));
    pane.staple->setHidden(true);
    EXPECT_FALSE(tree.widgetFor(pane.staple.get())->isVisible());
    const ViewNode* page = pane.staple->superview();
    LayoutUtil::closeViewsToView(LayoutUtil::visibleSubViews(page), viewAt({0, 0, 0, 8}).get(), 0);
    tree.refresh();
    EXPECT_EQ(tree.widgetFor(pane.zoom.get())->geometry().topLeft(), QPoint(12, 8));
    pane.note->setHiddenView(true);
    tree.refresh();
    EXPECT_FALSE(tree.widgetFor(pane.note.get())->isVisible());
}

TEST(ViewTreeWidget, NothingToRenderGivesAnEmptyWidget) {
    ViewTreeWidget tree(nullptr);
    EXPECT_EQ(tree.sizeHint(), QSize(0, 0));
    tree.refresh();
    EXPECT_FALSE(tree.widgetFor(nullptr));
}
