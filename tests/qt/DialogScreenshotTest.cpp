#include <gtest/gtest.h>

#include <QImage>

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

using namespace QtWidgetTest;

namespace {

void save(QWidget& window, const std::string& name) {
    const std::string path = std::string(OSTRIN_SCREENSHOT_DIR) + "/" + name + ".png";
    ASSERT_TRUE(QtScreenshot::saveWidget(window, path)) << path;
    const QImage picture(QString::fromStdString(path));
    EXPECT_EQ(picture.size(), window.size()) << path;
    EXPECT_GE(picture.width(), window.minimumSizeHint().width()) << path;
}

class DialogScreenshot : public DialogWindowTest {};

}  // namespace

// The dialogs as a user meets them, each over fresh controllers so that their texts are in
// the language; the favorite manager lists the favorites of the private home and the panes
// of the product.
TEST_F(DialogScreenshot, TheDialogsInEnglishAndGerman) {
    writeFavorite(favorite("Brochure coated"), "Coated, 170 gsm, saddle stitched", {{"JB_DUPLEX", "2"}});
    writeFavorite(favorite("Proof uncoated"), "", {{"CL_COLMD", "1"}});
    writeFavorite(favorite("Booklet A5"), "Imposed, folded and trimmed", {{"JB_DUPLEX", "1"}});
    for (const std::string language : {"en", "de"}) {
        Language chosen(language);
        SetNSBundleForPrincipalBundle(productBundle());
        JobNameWinController jobName;
        JobNameWindow jobNameWindow(jobName);
        jobName.restoreValues("Input", "Annual report proof 12");
        jobNameWindow.refresh();
        save(jobNameWindow, "job-name-" + language);

        SaveFavoriteWindowController saving;
        SaveFavoriteWindow savingWindow(saving);
        saving.nameField().setStringValue("Brochure coated");
        saving.commentField().setStringValue(language == "de" ? "Gestrichen, 170 g/m², Rückstich"
                                                              : "Coated, 170 gsm, saddle stitched");
        savingWindow.refresh();
        save(savingWindow, "save-favorite-" + language);

        AboutPanel about(AboutBox(productBundle().get()));
        save(about, "about-" + language);

        auto manager = std::make_shared<PanePlugInMgr>(productBundle());
        ASSERT_TRUE(manager->loadPlugIns());
        FavoriteWindowController favorites;
        FavoriteWindow favoritesWindow(favorites, nullptr, std::make_shared<PaneManagerTreeResolver>(manager));
        auto runner = std::make_shared<ScriptedModalWindowRunner>();
        ModalWindows::setRunner(runner);
        runner->queue([&](ModalWindow&) {
            favorites.selectRow(2);
            favoritesWindow.refresh();
            save(favoritesWindow, "favorites-" + language);
            favorites.clickedCancel();
        });
        favorites.showAsModalDialog("", PlistDictionary{{"DuplexMode", "DuplexNoTumble"}},
                                    [manager] { return manager->defaultSettings(); });
        ModalWindows::setRunner(nullptr);
        EXPECT_EQ(runner->runCount(), 1);
    }
}
