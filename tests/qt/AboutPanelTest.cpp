#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QTest>

#include "QtTestSupport.h"
#include "core/AboutBox.h"
#include "core/LocalizedString.h"
#include "qt/AboutPanel.h"

using namespace QtWidgetTest;

TEST(AboutPanel, ShowsTheBundlesIconNameVersionAndBuildWithoutATitleBar) {
    Language german("de");
    const AboutBox about(productBundle().get());
    AboutPanel panel(about);
    EXPECT_TRUE(panel.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(panel.nameLabel()->text(), "Ostrin Flow");
    EXPECT_EQ(panel.versionLabel()->text(), "Version 0.1.0");
    EXPECT_EQ(panel.buildLabel()->text(), "Build 1");
    ASSERT_FALSE(panel.iconLabel()->pixmap().isNull());
    EXPECT_EQ(panel.iconLabel()->pixmap().size(), QSize(64, 64));
}

TEST(AboutPanel, OpensForThePrincipalBundleAndGoesAtAClick) {
    SetNSBundleForPrincipalBundle(productBundle());
    QWidget window;
    window.resize(400, 300);
    window.show();
    QPointer<AboutPanel> panel = AboutPanel::showAboutPanel(&window);
    SetNSBundleForPrincipalBundle(nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel));
    EXPECT_EQ(panel->versionLabel()->text(), "Version 0.1.0");
    QTest::mouseClick(panel->nameLabel(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.isNull(); }));
}

TEST(AboutPanel, ABundleWithoutStringsShowsOnlyWhatItHas) {
    AboutPanel panel(AboutBox(nullptr));
    panel.show();
    EXPECT_TRUE(panel.iconLabel()->isHidden());
    EXPECT_TRUE(panel.versionLabel()->isHidden());
    EXPECT_TRUE(panel.buildLabel()->isHidden());
}
