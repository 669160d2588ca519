#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QTest>

#include "PanelWindowSupport.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/DetailedSettingsWindow.h"
#include "qt/QtScreenshot.h"
#include "qt/TraySheetWindow.h"

using namespace QtPanelTest;

namespace {

std::string screenshotPath(const std::string& name) { return std::string(OSTRIN_SCREENSHOT_DIR) + "/" + name + ".png"; }

// Every text that is shown is shown whole: no label or button is narrower than its text.
void expectNothingCutOff(QWidget& window, const std::string& name) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->wordWrap() || label->text().isEmpty()) continue;
        EXPECT_GE(label->width(), label->sizeHint().width()) << name << ": " << label->text().toStdString();
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << name << ": " << button->text().toStdString();
    }
}

void save(QWidget& window, const std::string& name) {
    expectNothingCutOff(window, name);
    const std::string path = screenshotPath(name);
    ASSERT_TRUE(QtScreenshot::saveWidget(window, path)) << path;
    EXPECT_EQ(QImage(QString::fromStdString(path)).size(), window.size()) << path;
}

// Opens the window a panel button opens and pictures it once it is up; then closes it as
// the user does (Escape), which the engine takes as cancel or, for a sheet, as close.
template <class Window>
void saveOpened(ShownPanel& shown, const std::shared_ptr<PanelButton>& button, const std::string& name,
                const std::function<void(Window&)>& more = {}) {
    WhenShown<Window> user([&](Window& window) {
        save(window, name);
        if (more) more(window);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    shown.click(button);
    EXPECT_TRUE(user.ran()) << name;
}

void saveLanguage(const std::string& language) {
    ShownPanel shown(language);
    TarnPDEByCocoa& panel = shown.panel();
    save(shown.window(), "panel-" + language);
    saveOpened<TraySheetWindow>(shown, panel.automaticPaperTraySelectionButton(), "tray-automatic-" + language);
    saveOpened<TraySheetWindow>(shown, panel.bypassPaperTraySelectionButton(), "tray-bypass-" + language);
    saveOpened<DetailedSettingsWindow>(shown, panel.showDetailedSettingsButton(), "detailed-tabs-" + language,
                                       [&](DetailedSettingsWindow& window) {
                                           DetailedSettingsWinController::sharedInstance().selectViewStyleItem(1);
                                           window.refresh();
                                           save(window, "detailed-tree-" + language);
                                           DetailedSettingsWinController::sharedInstance().selectViewStyleItem(0);
                                       });
}

}  // namespace

TEST(PanelScreenshot, ThePanelAndItsWindowsInEnglishAndGerman) {
    saveLanguage("en");
    saveLanguage("de");
}
