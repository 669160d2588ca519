#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "PanelWindowSupport.h"
#include "panes/PanePlugInMgr.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/DetailedSettingsWindow.h"
#include "qt/PaneNavigationTree.h"
#include "qt/TextFieldControlWidget.h"
#include "settings_ui/TabViewNode.h"

using namespace QtPanelTest;

namespace {

void showPage(DetailedSettingsWindow& window, const std::string& key) {
    for (int index = 0; index < window.pages()->count(); ++index) {
        if (!settingIn(*window.pages()->widget(index), key)) continue;
        QTest::mouseClick(window.pages()->tabBar(), Qt::LeftButton, {},
                          window.pages()->tabBar()->tabRect(index).center());
        return;
    }
    ADD_FAILURE() << "no page shows " << key;
}

void typeInto(VORNUIWidget* setting, const QString& text) {
    auto* field = setting ? qobject_cast<TextFieldControlWidget*>(setting->body()) : nullptr;
    ASSERT_TRUE(field && field->lineEdit()->isEnabled());
    field->lineEdit()->setFocus();
    typeText(field->lineEdit(), text);
}

void clickItem(QTreeWidget& tree, QTreeWidgetItem* item) {
    ASSERT_TRUE(item);
    tree.scrollToItem(item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
}

}  // namespace

// Mail notification without a mail address does not fit together: OK leaves the window
// on screen, the message about it a sheet of the window; once the address is typed, OK
// closes it and the panel's model holds what the panes show.
TEST(DetailedSettingsWindow, OkKeepsTheWindowUpUntilTheSettingsFitTogether) {
    ShownPanel shownPanel;
    const auto& controller = DetailedSettingsWinController::sharedInstance();
    std::unique_ptr<MessageBoxClicker> message;
    bool upUnderTheMessage = false;
    UserSteps user;
    user.add([&] { return activeWindow<DetailedSettingsWindow>() && controller.isRunning(); },
             [&] {
                 DetailedSettingsWindow& window = *activeWindow<DetailedSettingsWindow>();
                 EXPECT_EQ(window.parentWidget(), &shownPanel.window());
                 showPage(window, "MailNotifyJobEnd");
                 toggle(settingIn(window, "MailNotifyJobEnd"));
                 message = std::make_unique<MessageBoxClicker>("OK");
                 QTest::mouseClick(window.okButton(), Qt::LeftButton);
             });
    user.add([&] { return message && message->clicked() && controller.isRunning(); },
             [&] {
                 DetailedSettingsWindow* window = shownPanel.dialogs().detailedSettingsWindow();
                 upUnderTheMessage = window->isVisible();
                 EXPECT_EQ(message->parentWindow(), window);
                 EXPECT_TRUE(message->wasWindowModal());
                 typeInto(settingIn(*window, "MailAddress"), "press@example.com");
                 QTest::mouseClick(window->okButton(), Qt::LeftButton);
             });
    shownPanel.click(shownPanel.panel().showDetailedSettingsButton());
    EXPECT_TRUE(user.finished());
    EXPECT_TRUE(upUnderTheMessage);
    EXPECT_FALSE(message->text().isEmpty());
    EXPECT_FALSE(shownPanel.dialogs().detailedSettingsWindow()->isVisible());
    EXPECT_EQ(modelText(shownPanel.panel(), "MailAddress"), "press@example.com");
    EXPECT_EQ(modelText(shownPanel.panel(), "MailNotifyJobEnd"), "True");
}

TEST(DetailedSettingsWindow, CancelClosesTheWindowAndTheModelKeepsItsSettings) {
    ShownPanel shownPanel;
    WhenShown<DetailedSettingsWindow> user([](DetailedSettingsWindow& window) {
        showPage(window, "MailNotifyJobEnd");
        toggle(settingIn(window, "MailNotifyJobEnd"));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    shownPanel.click(shownPanel.panel().showDetailedSettingsButton());
    EXPECT_TRUE(user.ran());
    EXPECT_FALSE(shownPanel.dialogs().detailedSettingsWindow()->isVisible());
    EXPECT_EQ(modelText(shownPanel.panel(), "MailNotifyJobEnd"), "False");
}

TEST(DetailedSettingsWindow, TheViewStyleSwitchesBetweenTabsAndTheTreeOfPanesAndRevertReachesThePanes) {
    ShownPanel shownPanel;
    DetailedSettingsWinController controller;
    controller.awakeFromNib();
    DetailedSettingsWindow window(controller);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTabWidget* pages = window.pages();
    PaneNavigationTree* tree = window.paneTree();
    ASSERT_EQ(pages->count(), static_cast<int>(controller.tabView()->tabs().size()));
    EXPECT_TRUE(pages->tabBar()->isVisible());
    EXPECT_FALSE(tree->isVisible());
    EXPECT_EQ(window.viewStylePopup()->currentText(), "Tabs");

    QTest::keyClick(window.viewStylePopup(), Qt::Key_Down);
    EXPECT_EQ(controller.selectedViewStyleTag(), DetailedSettingsWinController::TreeStyleTag);
    EXPECT_FALSE(pages->tabBar()->isVisible());
    ASSERT_TRUE(tree->isVisible());
    EXPECT_EQ(tree->width(), 185 + 2 * tree->frameWidth());
    ASSERT_EQ(tree->topLevelItemCount(), pages->count());
    clickItem(*tree, tree->topLevelItem(2));
    EXPECT_EQ(controller.tabView()->selectedIndex(), 2);
    EXPECT_EQ(pages->currentIndex(), 2);
    // A pane with pages of its own lists them below it; choosing one shows its pane.
    int nesting = 0;
    while (nesting < tree->topLevelItemCount() && tree->topLevelItem(nesting)->childCount() == 0) ++nesting;
    ASSERT_LT(nesting, tree->topLevelItemCount());
    clickItem(*tree, tree->topLevelItem(nesting)->child(0));
    EXPECT_EQ(pages->currentIndex(), nesting);

    QTest::keyClick(window.viewStylePopup(), Qt::Key_Up);
    EXPECT_FALSE(controller.tabView()->isTabless());
    EXPECT_TRUE(pages->tabBar()->isVisible());
    EXPECT_FALSE(tree->isVisible());
    QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {}, pages->tabBar()->tabRect(1).center());
    EXPECT_EQ(controller.tabView()->selectedIndex(), 1);

    showPage(window, "MailNotifyJobEnd");
    toggle(settingIn(window, "MailNotifyJobEnd"));
    ASSERT_EQ(shownPanel.manager().getStringValueFromKey("MailNotifyJobEnd"), "True");
    QTest::mouseClick(window.revertButton(), Qt::LeftButton);
    EXPECT_EQ(shownPanel.manager().getStringValueFromKey("MailNotifyJobEnd"), "False");
}
