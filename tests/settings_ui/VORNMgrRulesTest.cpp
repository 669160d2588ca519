#include <gtest/gtest.h>

#include <cstdint>

#include "SettingsTestSupport.h"
#include "core/Diagnostics.h"

using namespace SettingsTest;

namespace {

bool enabled(VORNMgr& manager, const std::string& keyword) {
    return manager.controlsOf(keyword)->front()->isEnabled();
}

}  // namespace

TEST(Condition, ControlHeldBySeveralOriginsReturnsWhenAllRelease) {
    auto manager = managerWith({"OffsetMode", "OutputTray", "SamplePrintMode"});
    AlertScript alerts;
    EXPECT_TRUE(enabled(*manager, "OffsetMode"));
    choose(*manager, "OutputTray", "Toptray");
    click(*manager, "SamplePrintMode");
    EXPECT_EQ(manager->controlsOf("OffsetMode")->front()->disabledOrigins(),
              (std::vector<std::string>{"OutputTray", "SamplePrintMode"}));
    choose(*manager, "OutputTray", "Stackertray");
    EXPECT_FALSE(enabled(*manager, "OffsetMode"));
    click(*manager, "SamplePrintMode");
    EXPECT_TRUE(enabled(*manager, "OffsetMode"));
}

TEST(Condition, DictionaryEnablesPopupItemsAndMovesTheSelection) {
    auto manager = managerWith({"CoverPageTray", "CoverPageMode"});
    NotificationRecorder recorder({"CoverPageTray"});
    AlertScript alerts;
    EXPECT_FALSE(enabled(*manager, "CoverPageTray"));
    choose(*manager, "CoverPageMode", "Front");
    auto tray = manager->controlsOf("CoverPageTray")->front();
    EXPECT_TRUE(tray->isEnabled());
    EXPECT_FALSE(tray->popupItems()[1].enabled);
    EXPECT_EQ(manager->getStringValue("CoverPageTray"), "TrayMSI");
    ASSERT_GE(recorder.received().size(), 1u);
    EXPECT_EQ(recorder.received().front().userInfo->stringFor("Paramater", ""), "TrayMSI");
    choose(*manager, "CoverPageMode", "FrontBack");
    EXPECT_TRUE(tray->popupItems()[1].enabled);
}

TEST(LogicalSum, EnabledWhileAnyOriginEnables) {
    auto manager = managerWith({"PaperColorCustomName", "PaperColor", "PaperTypeD"});
    AlertScript alerts;
    EXPECT_FALSE(enabled(*manager, "PaperColorCustomName"));
    choose(*manager, "PaperColor", "StkCustom");
    choose(*manager, "PaperTypeD", "Custom");
    EXPECT_TRUE(enabled(*manager, "PaperColorCustomName"));
    choose(*manager, "PaperColor", "White");
    EXPECT_TRUE(enabled(*manager, "PaperColorCustomName"));
    EXPECT_EQ(manager->controlsOf("PaperColorCustomName")->front()->enabledOrigins(),
              (std::vector<std::string>{"PaperTypeD"}));
    choose(*manager, "PaperTypeD", "Plain");
    EXPECT_FALSE(enabled(*manager, "PaperColorCustomName"));
}

TEST(Cooperation, ChainsRunInTheOrderOfTheirNotificationsAndHideFollowsTheValue) {
    NotificationRecorder recorder({"ColorMode", "CmykAdjustmentSpotColor", "SpotColorCorrection",
                                   "SpotColorCorrectionProfile", "ValueChangFinished_ColorMode",
                                   "ValueChangFinished_SpotColorCorrection"});
    auto manager = managerWith(
        {"ColorMode", "SpotColorCorrection", "SpotColorCorrectionProfile", "CmykAdjustmentSpotColor"});
    manager->setStringValue("SpotColorCorrectionProfile", "UseOther");
    manager->updateOldValue("SpotColorCorrectionProfile");
    recorder.clear();
    AlertScript alerts;
    EXPECT_FALSE(manager->controlsOf("CmykAdjustmentSpotColor")->front()->isHidden());
    choose(*manager, "ColorMode", "Gray");
    EXPECT_EQ(recorder.names(),
              (std::vector<std::string>{"ColorMode", "CmykAdjustmentSpotColor", "SpotColorCorrection",
                                        "SpotColorCorrectionProfile", "ValueChangFinished_SpotColorCorrection",
                                        "ValueChangFinished_ColorMode"}));
    EXPECT_EQ(manager->getStringValue("SpotColorCorrection"), "False");
    EXPECT_EQ(manager->getStringValue("SpotColorCorrectionProfile"), "Standard");
    EXPECT_FALSE(enabled(*manager, "SpotColorCorrectionProfile"));
    auto adjustment = manager->controlsOf("CmykAdjustmentSpotColor")->front();
    EXPECT_TRUE(adjustment->isHidden());
    choose(*manager, "ColorMode", "Color");
    EXPECT_FALSE(adjustment->isHidden());
}

TEST(CollectiveChange, SkipsTheQuestionForAnyChange) {
    Language english("en");
    auto manager = managerWith({"ChgPrintPaperSizeType", "ImpositionMode_ImpositionCustomMode"});
    NotificationRecorder recorder({"ValueChangFinished_ChgPrintPaperSizeType"});
    AlertScript alerts({AlertFirstButtonReturn});
    manager->setSettings(PlistDictionary{{"ImpositionMode_ImpositionCustomMode", "Booklet"},
                                         {"ChgPrintPaperSizeType", "A4"}});
    EXPECT_TRUE(alerts.asked().empty());
    EXPECT_EQ(manager->getStringValue("ImpositionMode_ImpositionCustomMode"), "Booklet");
    ASSERT_EQ(recorder.received().size(), 1u);
    EXPECT_EQ(recorder.received()[0].userInfo->stringFor("isCollectiveChange", ""), "True");

    choose(*manager, "ChgPrintPaperSizeType", "SRA3");
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.lastMessage(),
              "Do you want to change the settings to the following in order to change [Output Paper Size]?\r"
              "[Imposition]:[Off]\r");
    EXPECT_EQ(manager->getStringValue("ImpositionMode_ImpositionCustomMode"), "Off");
    EXPECT_EQ(recorder.received().back().userInfo->stringFor("isCollectiveChange", ""), "False");
}

TEST(CollectiveChange, BooleansBecomeTextAndUnknownKeysAreIgnored) {
    auto manager = managerWith({"SamplePrintMode", "OffsetMode"});
    manager->setSettings(PlistDictionary{{"SamplePrintMode", true}, {"NotAControl", "x"}, {"OffsetMode", nullptr}});
    EXPECT_EQ(manager->getStringValue("SamplePrintMode"), "True");
    EXPECT_FALSE(enabled(*manager, "OffsetMode"));
    EXPECT_FALSE(manager->isCollectiveChange());
    EXPECT_FALSE(manager->getStringValue("NotAControl"));
}

TEST(Backups, RestoreTheSavedValuesOnce) {
    auto manager = managerWith({"StapleMode", "OutputTray", "ColorMode"});
    AlertScript alerts;
    const std::string key = manager->backupSettings();
    EXPECT_EQ(key.size(), 19u);
    EXPECT_EQ(key[10], 'T');
    manager->setStringValue("OutputTray", "Stackertray");
    manager->setStringValue("ColorMode", "Gray");
    manager->restoreSettings(key);
    EXPECT_EQ(manager->getStringValue("OutputTray"), "Auto");
    EXPECT_EQ(manager->getStringValue("ColorMode"), "Color");
    EXPECT_TRUE(manager->backups().empty());
    manager->restoreSettings(key);
    EXPECT_FALSE(manager->isCollectiveChange());
}

TEST(Defaults, EveryControlShowsItsDefaultAsACollectiveChange) {
    auto manager = managerWith({"StapleMode", "OutputTray", "Fold"});
    AlertScript alerts;
    choose(*manager, "StapleMode", "Saddle");
    EXPECT_EQ(manager->getStringValue("Fold"), "Bifold");
    NotificationRecorder recorder({"ValueChangFinished_StapleMode", "ValueChangFinished_Fold"});
    manager->setDefaults();
    EXPECT_EQ(manager->getStringValue("StapleMode"), "None");
    EXPECT_EQ(manager->getStringValue("Fold"), "None");
    ASSERT_EQ(recorder.received().size(), 2u);
    EXPECT_EQ(recorder.received()[0].userInfo->stringFor("isCollectiveChange", ""), "True");
}

TEST(Registry, ValuesOfAllKeywordsKeepUnsupportedOnes) {
    auto manager = managerWith({"OutputTray", "PaperColorCustomName"});
    auto second = buildControl("OutputTray");
    manager->addControl(second);
    manager->addControl(second);
    EXPECT_EQ(manager->controlsOf("OutputTray")->size(), 2u);
    manager->setStringValue("OutputTray", "Stackertoptray2");
    EXPECT_EQ(second->getUnsportValue(), "Stackertoptray2");
    const PlistDictionary values = manager->getAllValueDictionary();
    EXPECT_EQ(values.keys(), (std::vector<std::string>{"OutputTray", "PaperColorCustomName"}));
    EXPECT_EQ(values.stringFor("OutputTray", ""), "Stackertoptray2");
    EXPECT_EQ(values.stringFor("PaperColorCustomName", "?"), "");
    EXPECT_EQ(manager->getStringValue("OutputTray"), "Auto");
}

TEST(Registry, ChildControlsJoinAndTheManagerStopsObservingWhenGone) {
    auto manager = managerWith({"MailNotifyJobEnd"});
    ASSERT_TRUE(manager->controlsOf("MailAddress"));
    EXPECT_FALSE(enabled(*manager, "MailAddress"));
    click(*manager, "MailNotifyJobEnd");
    EXPECT_TRUE(enabled(*manager, "MailAddress"));
    // Only the manager's address is looked up once it is gone; kept where the compiler
    // cannot follow it, so that the lookup is not taken for a use of the freed manager.
    volatile const auto address = reinterpret_cast<std::uintptr_t>(manager.get());
    const auto observations = [&] {
        return NotificationCenter::defaultCenter().observationCount(reinterpret_cast<const void*>(address));
    };
    EXPECT_GT(observations(), 0u);
    manager.reset();
    EXPECT_EQ(observations(), 0u);
}

TEST(Condition, GlossEmphasisKeepsTheFrontColourForFrontPrinting) {
    auto manager = managerWith({"UseSpToner", "SpTonerSpecifyColorFront_SpTonerColorFront"});
    AlertScript alerts;
    click(*manager, "UseSpToner");
    auto gloss = manager->controlsOf("SpTonerGlossEmphasis")->front();
    auto front = manager->controlsOf("SpTonerSpecifyColorFront_SpTonerColorFront")->front();
    gloss->setCheckBoxShownState(1);
    gloss->checkboxAction();
    EXPECT_FALSE(front->isEnabled());
    gloss->setEnabled(false, "Operator");
    NotifyUnit::postNotificationName("SpTonerGlossEmphasis");
    EXPECT_TRUE(front->isEnabled());
    manager->setStringValue("SpTonerUseMode", "SpBack");
    front->setEnabled(false);
    NotifyUnit::postNotificationName("SpTonerGlossEmphasis");
    EXPECT_FALSE(front->isEnabled());
}

TEST(Cooperation, RulesThatChaseEachOtherAreCutOff) {
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    const PlistArray three{PlistDictionary{{"choice", "1"}, {"text", "One"}}, PlistDictionary{{"choice", "2"}, {"text", "Two"}},
                           PlistDictionary{{"choice", "3"}, {"text", "Three"}}};
    const auto chase = [&](const char* keyword, const char* other) {
        PlistDictionary cooperation;
        for (const char* value : {"1", "2", "3"})
            cooperation.set(value, PlistDictionary{{other, std::to_string(std::stoi(value) % 3 + 1)}});
        auto control = std::make_shared<VORNUI>();
        const PlistDictionary description{{"mainKeyword", keyword}, {"control_type", "PopupButton"}, {"choices", three},
                                          {"default", "1"}, {"cooperation", cooperation}};
        control->setControlDictionary(&description, nullptr);
        control->updateControl();
        return control;
    };
    VORNMgr manager;
    manager.addControl(chase("FrontMargin", "BackMargin"));
    manager.addControl(chase("BackMargin", "FrontMargin"));
    NotifyUnit::postNotificationName("FrontMargin");
    Diagnostics::setObserver({});
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(lines.back().find("keep changing other settings"), std::string::npos);
}
