#include <gtest/gtest.h>

#include <ctime>

#include "SettingsTestSupport.h"
#include "core/Diagnostics.h"

using namespace SettingsTest;

namespace {

class RecordingView : public VORNUIView {
public:
    void controlDidChange(const VORNUI&, VORNUIChange change) override { changes.push_back(change); }
    std::vector<VORNUIChange> changes;
};

}  // namespace

TEST(CheckBox, InvertedBoxShowsTheOppositeOfItsStoredState) {
    auto blank = buildControl("PrintBlankPages");
    EXPECT_EQ(blank->checkBoxState(), 1);
    EXPECT_EQ(blank->checkBoxShownState(), 0);
    EXPECT_EQ(blank->getStringValue(), "True");
    blank->setStringValue("False");
    EXPECT_EQ(blank->checkBoxShownState(), 1);
    EXPECT_EQ(blank->getStringValue(), "False");
    auto sample = buildControl("SamplePrintMode");
    sample->setCheckBoxState(1);
    EXPECT_EQ(sample->checkBoxShownState(), 1);
    EXPECT_EQ(sample->getStringValue(), "True");
}

TEST(CheckBox, ActionPostsItsValueAndTogglesChildrenWithIcons) {
    auto toner = buildControl("UseSpToner");
    NotificationRecorder recorder({"UseSpToner"});
    toner->setCheckBoxShownState(1);
    toner->checkboxAction();
    ASSERT_EQ(recorder.received().size(), 1u);
    EXPECT_EQ(*recorder.received()[0].userInfo,
              (PlistDictionary{{"action", "checkbox"}, {"Paramater", "True"}}));
    EXPECT_TRUE(toner->childControls()[0]->isEnabled());
    EXPECT_NE(toner->checkBoxStateIconPath().find("UseSpToner_True.png"), std::string::npos);
    toner->setCheckBoxShownState(0);
    toner->checkboxAction();
    EXPECT_EQ(recorder.received()[1].userInfo->stringFor("Paramater", ""), "False");
    EXPECT_FALSE(toner->childControls()[0]->isEnabled());
    EXPECT_FALSE(toner->childControls()[1]->isEnabled());
    EXPECT_NE(toner->checkBoxStateIconPath().find("UseSpToner_False.png"), std::string::npos);
}

TEST(CheckBox, OperationsOnOtherControlsAreRefusedWithADiagnostic) {
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    auto staple = buildControl("StapleMode");
    EXPECT_EQ(staple->checkBoxState(), 1);
    staple->setCheckBoxState(0);
    Diagnostics::setObserver({});
    EXPECT_EQ(lines, (std::vector<std::string>{"###checkbox object is invalid", "###checkbox object is invalid"}));
    EXPECT_EQ(staple->getStringValue(), "None");
}

TEST(Popup, ValueIsTheSelectedChoiceAndSeparatorsAreNotSelectable) {
    auto paper = buildControl("PaperTypeD");
    EXPECT_EQ(paper->popupItems().size(), 6u);
    EXPECT_TRUE(paper->popupItems()[2].isSeparator);
    paper->selectItemAtIndex(2);
    EXPECT_EQ(paper->getStringValue(), "Plain");
    paper->selectItemAtIndex(4);
    EXPECT_EQ(paper->getStringValue(), "Envelope");
    paper->setStringValue("Thick1");
    EXPECT_EQ(paper->selectedItemIndex(), 1);
    EXPECT_FALSE(paper->getUnsportValue());
}

TEST(Popup, ItemArraysAddAndRemoveEntries) {
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    auto paper = buildControl("PaperTypeD");
    paper->addPopupButtonArray(PlistArray{PlistArray{"1-Coated Heavy", "Custom_Off_Uncoated_Off_None_1"},
                                          PlistArray{"incomplete"}});
    paper->addPopupButtonArray(PlistValue("not a list"));
    Diagnostics::setObserver({});
    EXPECT_EQ(lines, (std::vector<std::string>{"##### Invalid list!"}));
    ASSERT_EQ(paper->popupItems().size(), 7u);
    EXPECT_EQ(paper->popupItems()[6].title, "1-Coated Heavy");
    paper->setStringValue("Custom_Off_Uncoated_Off_None_1");
    EXPECT_EQ(paper->getStringValue(), "Custom_Off_Uncoated_Off_None_1");
    paper->removePopupButtonArray(PlistArray{"Transparency", PlistArray{"x", "Envelope"}});
    EXPECT_EQ(popupChoices(*paper), (std::vector<std::string>{"Plain", "Thick1", "separator", "Custom",
                                                           "Custom_Off_Uncoated_Off_None_1"}));
    EXPECT_EQ(paper->getStringValue(), "Custom_Off_Uncoated_Off_None_1");
}

TEST(Popup, PreflightPostsItsCompanionAfterItself) {
    auto preflight = buildControl("PreflightMode");
    NotificationRecorder recorder({"PreflightMode", "PreflightModeCO"});
    preflight->selectItemAtIndex(2);
    preflight->popupButtonAction();
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"PreflightMode", "PreflightModeCO"}));
    EXPECT_EQ(recorder.received()[0].userInfo->stringFor("Paramater", ""), "CheckAndStop");
    EXPECT_FALSE(recorder.received()[1].userInfo);
}

TEST(Popup, EnablingByDictionaryMovesOffADisabledSelection) {
    auto tray = buildControl("CoverPageTray");
    NotificationRecorder recorder({"CoverPageTray"});
    tray->setEnabledByDictionary(PlistDictionary{{"TrayMSI", false}, {"Tray1", false}, {"Tray2", true}});
    EXPECT_EQ(tray->getStringValue(), "Tray2");
    ASSERT_EQ(recorder.received().size(), 1u);
    EXPECT_EQ(recorder.received()[0].userInfo->stringFor("Paramater", ""), "Tray2");
    tray->setEnabledByDictionary(PlistDictionary{{"Tray2", true}, {"Tray1", true}});
    EXPECT_EQ(recorder.received().size(), 1u);
    tray->setEnabledByDictionary(PlistDictionary{});
    EXPECT_EQ(tray->selectedItemIndex(), -1);
    EXPECT_FALSE(tray->getStringValue());
}

TEST(OptionText, ChoiceTextsByControlType) {
    auto staple = buildControl("StapleMode");
    EXPECT_EQ(staple->getOptionText("Saddle"), "Saddle Stitch");
    EXPECT_FALSE(staple->getOptionText("Unknown"));
    auto rotation = buildControl("RotateSheet");
    EXPECT_EQ(rotation->getOptionText("Rotate90"), "Quarter Turn");
    auto sample = buildControl("SamplePrintMode");
    EXPECT_EQ(sample->getOptionText("True"), "On");
    EXPECT_EQ(sample->getOptionText("Anything"), "Off");
    EXPECT_FALSE(buildControl("ImageDensity")->getOptionText("0"));
    EXPECT_FALSE(buildControl("MailAddress")->getOptionText("a@b.c"));
    EXPECT_EQ(staple->getSelectedOptionText(), "Off");
    auto password = buildControl("SecPrintPassword");
    password->setStringValue("1234");
    EXPECT_EQ(password->getSelectedOptionText(), "********");
}

TEST(RadioGroup, ActionPostsWithoutDetailsAndAnUnknownValueIsKept) {
    auto order = buildControl("PageOrder_new");
    order->selectCellAtIndex(2);
    NotificationRecorder recorder({"PageOrder_new"});
    order->radioButtonAction();
    EXPECT_EQ(order->getStringValue(), "FaceDownReverse");
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"PageOrder_new"}));
    EXPECT_FALSE(recorder.received()[0].userInfo);
    order->setStringValue("Sideways");
    EXPECT_EQ(order->getStringValue(), "Sideways");
}

TEST(Slider, PositionsRoundToAChoiceOrClampToTheLimits) {
    auto density = buildControl("ImageDensity");
    density->setSliderPosition(3.4);
    EXPECT_EQ(density->getStringValue(), "1");
    auto trim = buildControl("TrimRatio");
    EXPECT_EQ(trim->getStringValue(), "4");
    trim->setSliderPosition(7.5);
    EXPECT_EQ(trim->getStringValue(), "7.5");
    trim->setSliderPosition(20);
    EXPECT_EQ(trim->getStringValue(), "10");
}

TEST(DatePicker, NowIsTheCurrentTimeAndDescriptionsAreDates) {
    const long long before = std::time(nullptr);
    auto hold = buildControl("HoldUntil");
    const long long shown = std::stoll(*hold->getStringValue());
    EXPECT_GE(shown, before);
    EXPECT_LE(shown, before + 5);
    auto print = buildControl("PrintAt");
    EXPECT_EQ(print->getDefault(), "1714557600");
    EXPECT_EQ(print->getStringValue(), "1714557600");
    hold->setStringValue("1000");
    EXPECT_EQ(hold->getStringValue(), "1577836800");
    NotificationRecorder recorder({"PrintAt"});
    print->setPickedDate(1714560000);
    print->datePickerAction();
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"PrintAt"}));
    EXPECT_EQ(print->getStringValue(), "1714560000");
}

// A control disabled by several origins returns when all release it; one enabled
// positively stays enabled while any origin remains, with its field.
TEST(Enabling, OriginsDisableTogetherAndEnablePositivelyAlone) {
    auto offset = buildControl("OffsetMode");
    offset->setEnabled(false, "OutputTray");
    offset->setEnabled(false, "SamplePrintMode");
    offset->setEnabled(false, "OutputTray");
    offset->setEnabled(true, "OutputTray");
    EXPECT_FALSE(offset->isEnabled());
    offset->setEnabled(true, "SamplePrintMode");
    EXPECT_TRUE(offset->isEnabled());
    offset->setEnabled(true, "Nobody");
    EXPECT_TRUE(offset->isEnabled());

    auto name = buildControl("PaperColorCustomName");
    name->setEnabledPositively(true, "PaperColor");
    name->setEnabledPositively(true, "PaperTypeD");
    name->setEnabledPositively(false, "PaperColor");
    EXPECT_TRUE(name->textField()->isEnabled());
    name->setEnabledPositively(false, "PaperTypeD");
    EXPECT_FALSE(name->isEnabled());
    EXPECT_FALSE(name->textField()->isEnabled());
    EXPECT_EQ(name->disabledOrigins(), (std::vector<std::string>{"logical_sum_condition"}));
}

// A saved print option becomes value and old value; an update changes only the value.
TEST(Values, SavedPrintOptionBecomesValueAndOldValueButUpdatesOnlyTheValue) {
    auto fold = buildControl("Fold");
    EXPECT_FALSE(fold->getOldValue());
    fold->updateOldValue();
    EXPECT_EQ(fold->getOldValue(), "None");
    fold->updateValue("Bifold");
    EXPECT_EQ(fold->getStringValue(), "Bifold");
    EXPECT_EQ(fold->getOldValue(), "None");
    const PlistDictionary saved{{"Fold", "ZfoldRightBind"}};
    VORNUI::setUpdateWithPrintOption(&saved);
    EXPECT_TRUE(fold->updateWithPrintOption());
    EXPECT_EQ(fold->getStringValue(), "ZfoldRightBind");
    EXPECT_EQ(fold->getOldValue(), "ZfoldRightBind");
    EXPECT_FALSE(buildControl("StapleMode")->updateWithPrintOption());
    VORNUI::setUpdateWithPrintOption(nullptr);
    EXPECT_FALSE(fold->updateWithPrintOption());
}

TEST(Values, DefaultIsShownAndAnnounced) {
    auto staple = buildControl("StapleMode");
    NotificationRecorder recorder({"StapleMode", "PaperColorCustomName"});
    staple->setStringValue("Saddle");
    staple->setDefault();
    EXPECT_EQ(staple->getStringValue(), "None");
    auto name = buildControl("PaperColorCustomName");
    EXPECT_FALSE(name->getDefault());
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"StapleMode", "PaperColorCustomName"}));
    EXPECT_FALSE(recorder.received()[0].userInfo);
}

TEST(NumberField, StepperStartsFromTheNumberTypedStaysInRangeAndWritesTheUsersForm) {
    auto crease = buildControl("CreasePosition1");
    auto staple = buildControl("StapleMode");
    NotificationRecorder recorder({"CreasePosition1", "StapleMode"});
    crease->textField()->setEditedText("7.5");
    crease->stepperStep(1);
    EXPECT_EQ(crease->textField()->stringValue(), "7.51");
    crease->stepperStep(-3);
    EXPECT_EQ(crease->getStringValue(), "7.48");
    crease->textField()->setEditedText("10.25");
    crease->stepperStep(1);
    EXPECT_EQ(crease->getStringValue(), "10.25");
    crease->textField()->setEditedText("0.1");
    crease->stepperStep(1);
    EXPECT_EQ(crease->getStringValue(), "0.51");
    staple->stepperStep(1);
    EXPECT_EQ(recorder.names(), std::vector<std::string>(4, "CreasePosition1"));

    Language german("de");
    auto zoom = buildControl("Magnification");
    EXPECT_EQ(zoom->textField()->stringValue(), "100,0");
    EXPECT_EQ(zoom->getStringValue(), "100.0");
    NotificationRecorder zoomRecorder({"Magnification"});
    zoom->setStepperValue(125.5);
    zoom->stepperAction();
    EXPECT_EQ(zoom->textField()->stringValue(), "125,5");
    EXPECT_EQ(zoom->getStringValue(), "125.5");
    EXPECT_EQ(zoomRecorder.names(), (std::vector<std::string>{"Magnification"}));
    zoom->setStepperValue(1000);
    EXPECT_DOUBLE_EQ(zoom->stepper()->value, 400);
}

TEST(Actions, ButtonAndDisclosureTriangle) {
    auto copies = buildControl("NumCopies");
    NotificationRecorder recorder({"NumCopies_Button"});
    copies->buttonAction();
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"NumCopies_Button"}));
    auto mail = buildControl("MailNotifyJobEnd");
    mail->disclosureTriangleAction();
    EXPECT_TRUE(mail->isCollapsed());
    EXPECT_TRUE(mail->childControls()[0]->isHidden());
    mail->disclosureTriangleAction();
    EXPECT_FALSE(mail->childControls()[0]->isHidden());
}

TEST(View, HearsEachKindOfChange) {
    auto staple = buildControl("StapleMode");
    RecordingView view;
    staple->setView(&view);
    staple->setStringValue("TopEdge");
    staple->setEnabled(false);
    staple->setHidden(true);
    staple->removePopupButtonArray(PlistArray{"TopEdge4"});
    staple->controlRemoveAll();
    EXPECT_EQ(view.changes, (std::vector<VORNUIChange>{VORNUIChange::Value, VORNUIChange::Enabled, VORNUIChange::Hidden,
                                                       VORNUIChange::Items, VORNUIChange::Built}));
    EXPECT_TRUE(staple->popupItems().empty());
    EXPECT_EQ(staple->controlDictionary(), nullptr);
    staple->setView(nullptr);
}
