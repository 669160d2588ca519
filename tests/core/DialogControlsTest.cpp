#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/FormatterAttachment.h"
#include "core/ListModel.h"
#include "core/LocalizedString.h"
#include "core/MaxBytesFormatter.h"
#include "core/ModalWindow.h"
#include "core/NoEmptyTextRule.h"
#include "core/PreferredLanguages.h"
#include "core/RadioGroupModel.h"
#include "core/SimpleAlert.h"
#include "core/TextFieldModel.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(TextFieldModel, ARefusedEditPutsTheLastGoodTextBack) {
    TextFieldModel field;
    field.setStringValue("abc");
    field.setFormatter(MaxBytesFormatter::setMaxBytesFormatter(4));
    EXPECT_TRUE(field.typeText("abcd"));
    EXPECT_FALSE(field.typeText("abcdé"));
    EXPECT_EQ(field.stringValue(), "abcd");
    EXPECT_FALSE(field.typeText("ab\x07"));
    EXPECT_EQ(field.stringValue(), "abcd");
    field.setStringValue("program text beyond the limit");
    EXPECT_FALSE(field.typeText("program text beyond the limit!"));
    EXPECT_EQ(field.stringValue(), "program text beyond the limit");
}

TEST(TextFieldModel, ValueComesThroughTheFormatter) {
    TextFieldModel field;
    field.typeText("(a)");
    EXPECT_EQ(field.objectValue(), "(a)");
    field.setFormatter(attachMaxLengthFormatterWithEscape(10));
    EXPECT_EQ(field.objectValue(), "\\(a\\)");
}

TEST(TextFieldModel, EditingEndsOnlyAboveTheMinimum) {
    TextFieldModel field;
    field.setTitle("PIN");
    field.setFormatter(std::make_shared<MaxBytesFormatter>(3, 8));
    field.typeText("12");
    const EndEditingDecision refused = field.textShouldEndEditing(true);
    EXPECT_FALSE(refused.shouldEndEditing);
    EXPECT_NE(refused.message.find("PIN"), std::string::npos);
    field.typeText("");
    EXPECT_TRUE(field.textShouldEndEditing(true).shouldEndEditing);
}

TEST(SelectionModels, AnUnknownChoiceLeavesOrClearsTheSelection) {
    RadioGroupModel group;
    group.addRow({"Auto", "Auto", 0});
    group.addRow({"Input", "Input", 1});
    EXPECT_EQ(group.selectedCell(), nullptr);
    EXPECT_TRUE(group.selectRowWithRepresentedObject("Input"));
    EXPECT_FALSE(group.selectRowWithRepresentedObject("Other"));
    EXPECT_EQ(group.selectedRow(), 1);
    group.selectRow(2);
    EXPECT_EQ(group.selectedRow(), -1);

    ListModel list;
    list.setRows({"a", "b", "c"});
    list.selectRow(2);
    list.setRows({"a", "b", "c", "d"});
    EXPECT_EQ(list.selectedRow(), 2);
    list.setRows({"a"});
    EXPECT_EQ(list.selectedRow(), -1);
}

TEST(ModalWindow, RunsUntilTheScriptEndsItAndTellsTheObserver) {
    auto runner = std::make_shared<ScriptedModalWindowRunner>();
    ModalWindows::setRunner(runner);
    ModalWindow window;
    std::vector<int> stops;
    window.setStopObserver([&](int code) { stops.push_back(code); });
    runner->queue([](ModalWindow& shown) {
        EXPECT_TRUE(shown.isRunning());
        shown.stopModalWithCode(1);
        shown.stopModalWithCode(0);
    });
    EXPECT_EQ(window.runModal(), 1);
    EXPECT_FALSE(window.isRunning());
    EXPECT_EQ(stops, std::vector<int>{1});
    // A run the user closes without a button counts as cancelled.
    EXPECT_EQ(window.runModal(), 0);
    EXPECT_EQ(runner->runCount(), 2);
    ModalWindows::setRunner(nullptr);
    EXPECT_EQ(window.runModal(), 0);
}

TEST(NoEmptyTextRule, ABlankEditGivesBackTheTextFromBeforeItUnlessThatWasBlank) {
    NoEmptyTextRule rule;
    EXPECT_FALSE(rule.endEditing("").restored);
    rule.beginEditing("Proof run");
    const auto blank = rule.endEditing(" \t ");
    EXPECT_EQ(blank.text, "Proof run");
    EXPECT_TRUE(blank.restored);
    const auto kept = rule.endEditing(" Final run");
    EXPECT_EQ(kept.text, " Final run");
    EXPECT_FALSE(kept.restored);
    rule.beginEditing("  ");
    const auto stays = rule.endEditing("");
    EXPECT_EQ(stays.text, "");
    EXPECT_FALSE(stays.restored);
}

namespace {

// Records what the helpers ask, with the product's catalogues in German.
class SimpleAlertTest : public testing::Test {
protected:
    void SetUp() override {
        PreferredLanguages::setFirst("de");
        SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
        Alerts::setPresenter(_presenter);
    }
    void TearDown() override {
        Alerts::setPresenter(nullptr);
        SetNSBundleForLocalizedString(nullptr);
        PreferredLanguages::setFirst("");
    }
    const AlertRequest& asked() const { return _presenter->asked().back(); }

    std::shared_ptr<ScriptedAlertPresenter> _presenter = std::make_shared<ScriptedAlertPresenter>();
};

}  // namespace

TEST_F(SimpleAlertTest, TitleAndTextAreLocalisedAndOnlyOkIsOffered) {
    SimpleAlert("Self Resolve Conflict", "Yes");
    EXPECT_EQ(asked().messageText, "Konflikt selbst lösen");
    EXPECT_EQ(asked().informativeText, "Ja");
    EXPECT_EQ(asked().buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(asked().style, AlertRequest::Style::Informational);
    WarningAlert("No", "Not translated anywhere");
    EXPECT_EQ(asked().messageText, "Nein");
    EXPECT_EQ(asked().informativeText, "Not translated anywhere");
    EXPECT_EQ(asked().style, AlertRequest::Style::Warning);
}

TEST_F(SimpleAlertTest, ExceptionsAndObjectsShowAsGivenAndWithoutCataloguesTheKeysAreShown) {
    ExceptionAlert("No", std::runtime_error("disk full"));
    EXPECT_EQ(asked().messageText, "Nein");
    EXPECT_EQ(asked().informativeText, "disk full");
    EXPECT_EQ(asked().style, AlertRequest::Style::Critical);
    SimpleAlertObject("Yes", "No");
    EXPECT_EQ(asked().messageText, "Ja");
    EXPECT_EQ(asked().informativeText, "No");
    SetNSBundleForLocalizedString(nullptr);
    SimpleAlert("Self Resolve Conflict", "Yes");
    EXPECT_EQ(asked().messageText, "Self Resolve Conflict");
    EXPECT_EQ(asked().informativeText, "Yes");
    EXPECT_EQ(asked().buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(_presenter->asked().size(), 3u);
}
