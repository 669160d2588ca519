#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "PanelWindowSupport.h"
#include "favorites/PopUpMenuModel.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/TraySheetWindow.h"

using namespace QtPanelTest;

namespace {

bool shown(QWidget* widget) { return widget && widget->isVisible(); }

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
