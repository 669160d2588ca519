#include <gtest/gtest.h>

#include <string>

#include "DialogTestSupport.h"
#include "core/LocalizedString.h"
#include "favorites/JobNameWinController.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

using JobNameDialog = OstrinTest::DialogTest;

JobNameWinController& asJobNameDialog(ModalWindow& window) { return dynamic_cast<JobNameWinController&>(window); }

}  // namespace

TEST_F(JobNameDialog, LoadsWithAutoSelectedAndRestoringAppliesTheRowRule) {
    JobNameWinController controller;
    controller.loadWindow();
    const auto& rows = controller.jobNameRadio().rows();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].representedObject, "Auto");
    EXPECT_EQ(rows[0].tag, 0);
    EXPECT_EQ(rows[1].representedObject, "Input");
    EXPECT_EQ(controller.jobNameRadio().selectedRow(), 0);
    EXPECT_EQ(controller.specificJobName(), "Auto");
    EXPECT_EQ(controller.jobName(), "");
    EXPECT_FALSE(controller.jobNameField().isEnabled());
    EXPECT_FALSE(controller.jobNameLabel().isEnabled());

    controller.restoreValues("Input", "Weekly");
    EXPECT_EQ(controller.jobNameRadio().selectedRow(), 1);
    EXPECT_EQ(controller.jobName(), "Weekly");
    EXPECT_TRUE(controller.jobNameField().isEnabled());
    EXPECT_TRUE(controller.jobNameLabel().isEnabled());
    controller.restoreValues("Auto", "Weekly");
    EXPECT_FALSE(controller.jobNameField().isEnabled());
    controller.restoreValues("Unknown", "");
    EXPECT_EQ(controller.specificJobName(), "Auto");
}

TEST_F(JobNameDialog, AnEmptyNameIsRefusedForInputAndAcceptedForAuto) {
    JobNameWinController controller;
    controller.restoreValues("Input", "");
    bool stillRunning = false;
    runner->queue([&](ModalWindow& window) {
        asJobNameDialog(window).clickedOK();
        stillRunning = window.isRunning();
        asJobNameDialog(window).jobNameField().typeText("Proof");
        asJobNameDialog(window).clickedOK();
    });
    EXPECT_EQ(controller.showAsModalDialog(), 1);
    EXPECT_TRUE(stillRunning);
    ASSERT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(alerts->asked()[0].messageText, "Please enter a job name of 1 to 255 characters.");
    EXPECT_EQ(alerts->asked()[0].buttons, std::vector<std::string>{"OK"});
    EXPECT_EQ(controller.jobName(), "Proof");
    std::string specific = "Auto";
    std::string escaped = "old";
    std::string name;
    runner->queue([](ModalWindow& window) { asJobNameDialog(window).clickedOK(); });
    EXPECT_TRUE(ShowJobNameModalDialog(specific, &escaped, name));
    EXPECT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(specific, "Auto");
    EXPECT_EQ(escaped, "");
    EXPECT_EQ(name, "");
}

TEST_F(JobNameDialog, OkReplacesTheTextsWithTheTypedNameAndItsEscapedForm) {
    std::string specific = "Auto";
    std::string escaped;
    std::string name = "kept (draft)";
    runner->queue([](ModalWindow& window) {
        auto& dialog = asJobNameDialog(window);
        dialog.jobNameRadio().selectRow(1);
        dialog.selectRatio();
        EXPECT_TRUE(dialog.jobNameField().isEnabled());
        EXPECT_EQ(dialog.jobNameField().stringValue(), "kept (draft)");
        dialog.jobNameField().typeText("Q3 (final) \\ proof");
        dialog.clickedOK();
    });
    EXPECT_TRUE(ShowJobNameModalDialog(specific, &escaped, name));
    EXPECT_EQ(specific, "Input");
    EXPECT_EQ(name, "Q3 (final) \\ proof");
    EXPECT_EQ(escaped, "Q3 \\(final\\) \\\\ proof");
}

// Cancel, and a dialog nobody can show, leave the texts as they were.
TEST_F(JobNameDialog, CancelLeavesTheTexts) {
    std::string specific = "Input";
    std::string escaped = "Report";
    std::string name = "Report";
    runner->queue([](ModalWindow& window) {
        asJobNameDialog(window).jobNameField().typeText("Other");
        asJobNameDialog(window).clickedCancel();
    });
    EXPECT_FALSE(ShowJobNameModalDialog(specific, &escaped, name));
    ModalWindows::setRunner(nullptr);
    EXPECT_FALSE(ShowJobNameModalDialog(specific, nullptr, name));
    EXPECT_EQ(specific, "Input");
    EXPECT_EQ(escaped, "Report");
    EXPECT_EQ(name, "Report");
}

TEST_F(JobNameDialog, WithoutStringsTheKeysAreShown) {
    SetNSBundleForLocalizedString(nullptr);
    JobNameWinController controller;
    controller.restoreValues("Input", "");
    EXPECT_EQ(controller.windowTitle(), "Job name setting");
    EXPECT_EQ(controller.jobNameRadio().rows()[1].title, "Input");
    controller.clickedOK();
    ASSERT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(alerts->asked()[0].messageText, "1 to 255 byte alart");
    EXPECT_EQ(alerts->asked()[0].buttons, std::vector<std::string>{"OK"});
}
