#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "PanelWindowSupport.h"
#include "favorites/PopUpMenuModel.h"
#include "panes/PanePlugInMgr.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/DetailedSettingsWindow.h"
#include "qt/PaneNavigationTree.h"
#include "qt/TextFieldControlWidget.h"
#include "qt/TraySheetWindow.h"
#include "settings_ui/TabViewNode.h"

using namespace QtPanelTest;

namespace {

bool shown(QWidget* widget) { return widget && widget->isVisible(); }

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

TEST(PanelWidget, ShowsTheSettingsAndButtonsAndTellsThePanelWhenItIsShown) {
    ShownPanel shownPanel;
    TarnPDEByCocoa& panel = shownPanel.panel();
    PanelWidget& widget = shownPanel.widget();
    EXPECT_TRUE(panel.isIntializedUi());
    EXPECT_TRUE(panel.isMyPluginPDE());
    EXPECT_EQ(widget.windowTitle(), "Ostrin Flow");
    for (const char* key : {"DuplexMode", "ColorMode", "StapleMode", "Punch_PunchHoles", "Fold", "OutputTray",
                            "QVInputSlot", "PagePrintOnCenter", "AutoTraySettingToBypass"})
        EXPECT_TRUE(shown(widget.controlWidget(key))) << key;
    EXPECT_EQ(widget.controlWidget("ColorMode")->titleLabel()->text(), "Color Mode");
    EXPECT_EQ(widget.buttonFor(panel.showDetailedSettingsButton().get())->text(), "Show Detailed Settings");
    EXPECT_EQ(widget.buttonFor(panel.automaticPaperTraySelectionButton().get())->text(), "Automatic Tray...");
    EXPECT_EQ(widget.buttonFor(panel.bypassPaperTraySelectionButton().get())->text(), "Bypass Tray...");
    EXPECT_TRUE(shown(widget.buttonFor(panel.revertToDefaultSettingsButton().get())));
    EXPECT_EQ(widget.jobNameLabel()->text(), "Auto");
    // Favorites are managed in the detailed settings window: the whole row is gone.
    EXPECT_FALSE(shown(widget.favoritePopup()));
    EXPECT_FALSE(widget.favoritePopup()->parentWidget()->isVisible());

    shownPanel.window().hide();
    EXPECT_FALSE(panel.isMyPluginPDE());
    shownPanel.window().show();
    EXPECT_TRUE(panel.isMyPluginPDE());
}

TEST(PanelWidget, FavoritePopupShowsThePanelsItemsAndForwardsAChoice) {
    ShownPanel shownPanel;
    PopUpMenuModel& model = shownPanel.panel().favoritePopup();
    model.removeAllItems();
    model.addItem("Standard", "", "");
    model.addSeparator();
    model.addItem("Brochure", "/favorites/Brochure.pqz", "");
    model.selectItemAtIndex(0);
    shownPanel.widget().refresh();
    QComboBox* popup = shownPanel.widget().favoritePopup();
    ASSERT_EQ(popup->count(), 3);
    EXPECT_EQ(popup->itemText(2), "Brochure");
    EXPECT_EQ(popup->itemData(2).toString(), "/favorites/Brochure.pqz");
    emit popup->activated(2);
    EXPECT_EQ(model.indexOfSelectedItem(), 2);
    EXPECT_EQ(popup->currentIndex(), 2);
}

TEST(PanelWidget, RevertPutsAChangedSettingBackAndTheBypassSettingLocksItsTrayButton) {
    ShownPanel shownPanel;
    TarnPDEByCocoa& panel = shownPanel.panel();
    PanelWidget& widget = shownPanel.widget();
    ASSERT_TRUE(choose(widget.controlWidget("ColorMode"), "Black and White"));
    EXPECT_EQ(modelText(panel, "ColorMode"), "Grayscale");

    QPushButton* bypass = widget.buttonFor(panel.bypassPaperTraySelectionButton().get());
    EXPECT_TRUE(bypass->isEnabled());
    toggle(widget.controlWidget("AutoTraySettingToBypass"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bypass->isEnabled(); }));
    EXPECT_EQ(modelText(panel, "AutoTraySettingToBypass"), "True");

    shownPanel.click(panel.revertToDefaultSettingsButton());
    EXPECT_EQ(modelText(panel, "ColorMode"), "Color");
    EXPECT_EQ(modelText(panel, "AutoTraySettingToBypass"), "False");
    EXPECT_EQ(widget.controlWidget("ColorMode")->control()->getStringValue(), "Color");
    EXPECT_TRUE(bypass->isEnabled());
}

// Each tray button opens its sheet over the panel; what the user sets there reaches the
// panel's model when the sheet closes, by its close button or by Escape alike.
TEST(PanelWidget, TrayButtonsOpenTheirSheetsOverThePanelAndTheSettingsReachTheModel) {
    ShownPanel shownPanel;
    TarnPDEByCocoa& panel = shownPanel.panel();
    const struct {
        std::shared_ptr<PanelButton> button;
        const char* colourKey;
        bool byEscape;
    } cases[] = {{panel.automaticPaperTraySelectionButton(), "PaperColor", false},
                 {panel.bypassPaperTraySelectionButton(), "PaperColorBypass", true}};
    for (const auto& sheetCase : cases) {
        WhenShown<TraySheetWindow> user([&](TraySheetWindow& sheet) {
            EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
            EXPECT_EQ(sheet.parentWidget(), &shownPanel.window());
            EXPECT_FALSE(sheet.windowTitle().isEmpty());
            EXPECT_TRUE(choose(settingIn(sheet, sheetCase.colourKey), "Blue"));
            if (sheetCase.byEscape)
                QTest::keyClick(&sheet, Qt::Key_Escape);
            else
                QTest::mouseClick(sheet.closeButton(), Qt::LeftButton);
        });
        shownPanel.click(sheetCase.button);
        EXPECT_TRUE(user.ran()) << sheetCase.colourKey;
        EXPECT_EQ(modelText(panel, sheetCase.colourKey), "Blue");
        EXPECT_FALSE(shown(shownPanel.dialogs().traySheetWindow(sheetCase.byEscape)));
    }
}

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
