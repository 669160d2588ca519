#include <gtest/gtest.h>

#include <QImage>

#include "DialogWindowSupport.h"
#include "QtTestSupport.h"
#include "core/AboutBox.h"
#include "core/LocalizedString.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/JobNameWinController.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "panes/PanePlugInMgr.h"
#include "qt/AboutPanel.h"
#include "qt/FavoriteWindow.h"
#include "qt/JobNameWindow.h"
#include "qt/QtScreenshot.h"
#include "qt/SaveFavoriteWindow.h"

using namespace QtDialogTest;

namespace {

std::string screenshotPath(const std::string& name) { return std::string(OSTRIN_SCREENSHOT_DIR) + "/" + name + ".png"; }

void save(QWidget& window, const std::string& name) {
    const std::string path = screenshotPath(name);
    ASSERT_TRUE(QtScreenshot::saveWidget(window, path)) << path;
    const QImage picture(QString::fromStdString(path));
    EXPECT_EQ(picture.size(), window.size()) << path;
    EXPECT_GE(picture.width(), window.minimumSizeHint().width()) << path;
}

// The dialogs as a user meets them, each over fresh controllers so that their texts are
// in language; the favorite manager lists the favorites of the private home and the panes
// of the product.
class DialogScreenshot : public DialogWindowTest {
protected:
    void saveDialogs(const std::string& language) {
        QtWidgetTest::Language chosen(language);
        SetNSBundleForPrincipalBundle(QtWidgetTest::productBundle());
        saveJobName(language);
        saveSaveFavorite(language);
        saveFavoriteManager(language);
        AboutPanel about(AboutBox(QtWidgetTest::productBundle().get()));
        save(about, "about-" + language);
    }

private:
    void saveJobName(const std::string& language) {
        JobNameWinController controller;
        JobNameWindow window(controller);
        controller.restoreValues("Input", "Annual report proof 12");
        window.refresh();
        save(window, "job-name-" + language);
    }

    void saveSaveFavorite(const std::string& language) {
        SaveFavoriteWindowController controller;
        SaveFavoriteWindow window(controller);
        controller.nameField().setStringValue("Brochure coated");
        controller.commentField().setStringValue(language == "de" ? "Gestrichen, 170 g/m², Rückstich" : "Coated, 170 gsm, saddle stitched");
        window.refresh();
        save(window, "save-favorite-" + language);
    }

    void saveFavoriteManager(const std::string& language) {
        auto manager = std::make_shared<PanePlugInMgr>(QtWidgetTest::productBundle());
        ASSERT_TRUE(manager->loadPlugIns());
        FavoriteWindowController controller;
        FavoriteWindow window(controller, nullptr, std::make_shared<PaneManagerTreeResolver>(manager));
        auto runner = std::make_shared<ScriptedModalWindowRunner>();
        ModalWindows::setRunner(runner);
        runner->queue([&](ModalWindow&) {
            controller.selectRow(2);
            window.refresh();
            save(window, "favorites-" + language);
            controller.clickedCancel();
        });
        controller.showAsModalDialog("", PlistDictionary{{"DuplexMode", "DuplexNoTumble"}},
                                     [manager] { return manager->defaultSettings(); });
        ModalWindows::setRunner(nullptr);
        EXPECT_EQ(runner->runCount(), 1);
    }
};

}  // namespace

TEST_F(DialogScreenshot, TheDialogsInEnglishAndGerman) {
    writeFavorite(favorite("Brochure coated"), "Coated, 170 gsm, saddle stitched", {{"JB_DUPLEX", "2"}});
    writeFavorite(favorite("Proof uncoated"), "", {{"CL_COLMD", "1"}});
    writeFavorite(favorite("Booklet A5"), "Imposed, folded and trimmed", {{"JB_DUPLEX", "1"}});
    saveDialogs("en");
    saveDialogs("de");
}
