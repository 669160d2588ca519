#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DialogTestSupport.h"
#include "favorites/SaveFavoriteWindowController.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

using SaveFavoriteDialog = OstrinTest::DialogTest;

SaveFavoriteWindowController& asSaveDialog(ModalWindow& window) {
    return dynamic_cast<SaveFavoriteWindowController&>(window);
}

}  // namespace

TEST_F(SaveFavoriteDialog, LoadsButtonTitlesAndTheCommentLimit) {
    SaveFavoriteWindowController controller;
    controller.loadWindow();
    EXPECT_EQ(controller.saveButton().title(), "Save");
    EXPECT_EQ(controller.cancelButton().title(), "Cancel");
    EXPECT_TRUE(controller.commentField().typeText(std::string(255, 'c')));
    EXPECT_FALSE(controller.commentField().typeText(std::string(256, 'c')));
}

// Each refusal is said in a sheet, keeps the dialog open and focuses its field; the name
// is checked before the comment.
TEST_F(SaveFavoriteDialog, RefusalsKeepTheDialogOpenAndFocusTheOffendingField) {
    SaveFavoriteWindowController controller;
    std::vector<bool> stillRunning;
    std::vector<const TextFieldModel*> focused;
    runner->queue([&](ModalWindow& window) {
        auto& dialog = asSaveDialog(window);
        for (const char* name : {"Default Settings", "a/b", "Proofs"}) {
            dialog.nameField().setStringValue(name);
            dialog.clickedOK();
            stillRunning.push_back(window.isRunning());
            focused.push_back(window.firstResponder());
        }
        dialog.commentField().setStringValue("short");
        dialog.clickedOK();
    });
    EXPECT_EQ(controller.showAsModalDialog("", std::string(256, 'c')), 1);
    EXPECT_EQ(stillRunning, (std::vector<bool>{true, true, true}));
    EXPECT_EQ(focused, (std::vector<const TextFieldModel*>{&controller.nameField(), &controller.nameField(),
                                                           &controller.commentField()}));
    ASSERT_EQ(alerts->asked().size(), 3u);
    EXPECT_EQ(alerts->asked()[0].messageText, "This name belongs to the default settings. Please choose another name.");
    EXPECT_EQ(alerts->asked()[1].messageText.rfind("A favorite name must have 1 to 27 bytes", 0), 0u);
    EXPECT_EQ(alerts->asked()[2].messageText, "A comment must not be longer than 255 bytes.");
    EXPECT_EQ(controller.name(), "Proofs");
}

TEST_F(SaveFavoriteDialog, CancelKeepsNameAndComment) {
    std::string name = "Final";
    std::string comment = "approved by the customer";
    runner->queue([](ModalWindow& window) {
        asSaveDialog(window).nameField().typeText("Other");
        asSaveDialog(window).commentField().typeText("changed");
        asSaveDialog(window).clickedCancel();
    });
    EXPECT_FALSE(ShowSaveFavoriteModalDialog(name, comment));
    EXPECT_EQ(name, "Final");
    EXPECT_EQ(comment, "approved by the customer");
}
