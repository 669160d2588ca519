#include <gtest/gtest.h>

#include "SettingsTestSupport.h"

using namespace SettingsTest;

namespace {

const std::vector<std::string> finishingKeywords = {"DuplexMode", "PaperTypeD", "StapleMode", "OutputTray",
                                                    "Fold",       "OffsetMode", "ChgPrintPaperSizeType",
                                                    "ImpositionMode_ImpositionCustomMode", "Magnification"};

}  // namespace

TEST(ConflictPattern, ComparesThresholdsAndLiterals) {
    EXPECT_EQ(VORNMgr::conflictedType("__LESS__:10", "9.5"), 1);
    EXPECT_EQ(VORNMgr::conflictedType("__LESS__:10", "10"), 0);
    EXPECT_EQ(VORNMgr::conflictedType("__GREATER__:10", "10.1"), 2);
    EXPECT_EQ(VORNMgr::conflictedType("__GREATER__:10", "10"), 0);
    EXPECT_EQ(VORNMgr::conflictedType("__LESS__:1", "Plain"), 1);
    EXPECT_EQ(VORNMgr::conflictedType("__LESS__:10", "__ALL__"), 0);
    EXPECT_EQ(VORNMgr::conflictedType("__ALL__", "__ALL__"), 3);
    EXPECT_EQ(VORNMgr::conflictedType("Saddle", "Saddle"), 3);
    EXPECT_EQ(VORNMgr::conflictedType("Saddle", "saddle"), 0);
    EXPECT_EQ(VORNMgr::conflictedValue("__GREATER__:200", "250"), "200");
    EXPECT_EQ(VORNMgr::conflictedValue("__GREATER__:200", "150"), "");
    EXPECT_EQ(VORNMgr::conflictedValue("Saddle", "Saddle"), "");
}

TEST(ConflictSearch, MergesNestedRestoreLists) {
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("OutputTray", "Toptray");
    manager->setStringValue("PaperTypeD", "Transparency");
    auto info = manager->conflictInfo("StapleMode", "Saddle");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->conflictedTypeSelf, 3);
    EXPECT_EQ(info->conflictedKeyList, (std::vector<std::string>{"OutputTray", "DuplexMode", "PaperTypeD"}));
    EXPECT_EQ(info->restoreKeyList, (std::vector<std::string>{"DuplexMode", "OutputTray", "PaperTypeD"}));
    EXPECT_EQ(info->restoreDict.at("DuplexMode"), "DuplexNoTumble");
    EXPECT_EQ(info->restoreDict.at("OutputTray"), "D3finishertray");
    EXPECT_EQ(info->restoreDict.at("PaperTypeD"), "Plain");
    EXPECT_EQ(info->conflictedTypeOthersDict.at("DuplexMode"), 3);
    EXPECT_FALSE(manager->conflictInfo("StapleMode", "TopEdge"));
    EXPECT_FALSE(manager->conflictInfo("NoSuchKeyword", "Saddle"));
}

TEST(ConflictSearch, RestoreNamingAKeywordTwiceKeepsTheFirstValue) {
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("OutputTray", "Toptray");
    manager->setStringValue("DuplexMode", "DuplexTumble");
    const PlistDictionary rules{
        {"OutputTray", PlistDictionary{{"Toptray", PlistDictionary{{"restore", PlistDictionary{{"DuplexMode", "None"},
                                                                                               {"OutputTray", "Auto"}}}}}}},
        {"DuplexMode", PlistDictionary{{"__GREATER__:5", PlistDictionary{{"restore", "Never"}}},
                                       {"DuplexTumble", PlistDictionary{{"restore", "DuplexNoTumble"}}}}},
        {"Unregistered", PlistDictionary{{"x", PlistDictionary{{"restore", "y"}}}}}};
    auto info = manager->findConflictInfo(rules, 2, "9");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->conflictedTypeSelf, 2);
    EXPECT_EQ(info->conflictedValueSelf, "9");
    EXPECT_EQ(info->restoreKeyList, (std::vector<std::string>{"DuplexMode", "OutputTray"}));
    EXPECT_EQ(info->restoreDict.at("DuplexMode"), "None");
}

TEST(BeforeChange, AsksAndAppliesEveryRestoreValue) {
    Language english("en");
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("OutputTray", "Toptray");
    manager->setStringValue("PaperTypeD", "Transparency");
    NotificationRecorder recorder({"DuplexMode", "OutputTray", "PaperTypeD", "StapleMode"});
    AlertScript alerts({AlertFirstButtonReturn});
    EXPECT_TRUE(manager->validateBeforeChange("StapleMode", "Saddle", std::nullopt));
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.lastMessage(),
              "When the following settings are made, Staple cannot be set.\r"
              "[Output Tray]:[Top Tray]\r[2-Sided Printing]:[Off]\r[Paper Type]:[Transparency]\r"
              "\rDo you want to change the settings to the following?\r"
              "[2-Sided Printing]:[Long-Edge Binding]\r[Output Tray]:[Finisher Tray]\r[Paper Type]:[Plain]\r");
    EXPECT_EQ(alerts.asked()[0].buttons, (std::vector<std::string>{"Yes", "No"}));
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"DuplexMode", "OutputTray", "PaperTypeD"}));
    EXPECT_EQ(manager->getStringValue("DuplexMode"), "DuplexNoTumble");
    EXPECT_EQ(manager->getStringValue("StapleMode"), "None");
}

TEST(BeforeChange, DeclinedChangesNothingAndNamesTheCaller) {
    Language german("de");
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("PaperTypeD", "Transparency");
    NotificationRecorder recorder({"DuplexMode", "PaperTypeD"});
    AlertScript alerts({AlertSecondButtonReturn});
    EXPECT_FALSE(manager->validateBeforeChange("DuplexMode", "DuplexTumble", std::string("Duplex")));
    EXPECT_EQ(alerts.lastMessage().rfind("Bei den folgenden Einstellungen kann Duplex nicht eingestellt werden.\r", 0), 0u);
    EXPECT_NE(alerts.lastMessage().find("\rMöchten Sie die Einstellungen wie folgt ändern?\r"), std::string::npos);
    EXPECT_EQ(alerts.asked()[0].buttons, (std::vector<std::string>{"Ja", "Nein"}));
    EXPECT_TRUE(recorder.names().empty());
    EXPECT_EQ(manager->getStringValue("PaperTypeD"), "Transparency");
    EXPECT_TRUE(manager->validateBeforeChange("DuplexMode", "None", std::nullopt));
    EXPECT_EQ(alerts.asked().size(), 1u);
}

// Declined, the change goes back to the old value; accepted, the others are restored and
// the change is finished.
TEST(AfterChange, DeclinedDialogRevertsAndAcceptedDialogRestoresTheOthers) {
    Language english("en");
    auto manager = managerWith(finishingKeywords);
    choose(*manager, "PaperTypeD", "Transparency");
    NotificationRecorder recorder({"ValueChangFinished_DuplexMode", "PaperTypeD"});
    AlertScript alerts({AlertSecondButtonReturn, AlertFirstButtonReturn});
    choose(*manager, "DuplexMode", "DuplexTumble");
    EXPECT_EQ(alerts.lastMessage(),
              "The following properties cannot be set at the same time.\r[2-Sided Printing]:[Short-Edge Binding]\r"
              "[Paper Type]:[Transparency]\r"
              "\rDo you want to change to the following settings to enable the selection?\r[Paper Type]:[Plain]\r");
    EXPECT_EQ(manager->getStringValue("DuplexMode"), "None");
    EXPECT_EQ(manager->getStringValue("PaperTypeD"), "Transparency");
    EXPECT_TRUE(recorder.names().empty());

    choose(*manager, "DuplexMode", "DuplexTumble");
    EXPECT_EQ(manager->getStringValue("DuplexMode"), "DuplexTumble");
    EXPECT_EQ(manager->getStringValue("PaperTypeD"), "Plain");
    EXPECT_EQ(manager->controlsOf("DuplexMode")->front()->getOldValue(), "DuplexTumble");
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"PaperTypeD", "ValueChangFinished_DuplexMode"}));
    EXPECT_EQ(recorder.received().back().userInfo->stringFor("isCollectiveChange", ""), "False");
}

TEST(AfterChange, ThresholdConflictsShowTheThreshold) {
    Language english("en");
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("ImpositionMode_ImpositionCustomMode", "Booklet");
    AlertScript alerts({AlertFirstButtonReturn});
    manager->setStringValue("Magnification", "250.0");
    NotifyUnit::postNotificationName("Magnification");
    EXPECT_EQ(alerts.lastMessage().rfind("The following properties cannot be set at the same time.\r"
                                         "[Zoom]:[More Than 200]\r[Imposition]:[Booklet]\r",
                                         0),
              0u);
    EXPECT_EQ(manager->getStringValue("ImpositionMode_ImpositionCustomMode"), "Off");
}

TEST(AfterChange, UnchangedValueIsNotCheckedAndNotFinished) {
    auto manager = managerWith(finishingKeywords);
    NotificationRecorder recorder({"ValueChangFinished_StapleMode"});
    AlertScript alerts;
    std::vector<std::string> names;
    EXPECT_FALSE(manager->validateAfterChange("StapleMode", names));
    EXPECT_FALSE(manager->validateUnrestorableConflict("StapleMode", names));
    NotifyUnit::postNotificationName("StapleMode");
    EXPECT_TRUE(recorder.names().empty());
    EXPECT_TRUE(manager->validateAfterChange("NoSuchKeyword", names));
    EXPECT_TRUE(alerts.asked().empty());
}

// Only once the print server's lists are in is the user told, and the change reverted.
TEST(Unresolvable, WithNetworkDataRevertsAfterTellingTheUser) {
    Language english("en");
    auto manager = managerWith(finishingKeywords);
    choose(*manager, "StapleMode", "TopLeftCorner");
    {
        NetworkData offline(false);
        AlertScript alerts;
        choose(*manager, "OutputTray", "Documentfinishing");
        EXPECT_TRUE(alerts.asked().empty());
        EXPECT_EQ(manager->getStringValue("OutputTray"), "Documentfinishing");
        EXPECT_FALSE(manager->controlsOf("OffsetMode")->front()->isEnabled());
        choose(*manager, "OutputTray", "Auto");
    }
    NetworkData online(true);
    NotificationRecorder recorder({"ValueChangFinished_OutputTray"});
    AlertScript alerts({AlertFirstButtonReturn});
    choose(*manager, "OutputTray", "Documentfinishing");
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.lastMessage(),
              "Output Tray Error\r[Output Tray]:[Document Finisher]\r[Staple]:[Top Left]\r\r"
              "The selection is cancelled and the following setting is restored.\r[Output Tray]:[Auto Select]\r");
    EXPECT_EQ(alerts.asked()[0].buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(manager->getStringValue("OutputTray"), "Auto");
    EXPECT_TRUE(manager->controlsOf("OffsetMode")->front()->isEnabled());
    EXPECT_TRUE(recorder.names().empty());
}

TEST(Unresolvable, NestedEntryCarriesItsOwnMessage) {
    Language english("en");
    auto manager = managerWith(finishingKeywords);
    manager->setStringValue("Fold", "Bifold");
    manager->setStringValue("PaperTypeD", "Envelope");
    NetworkData online(true);
    AlertScript alerts({AlertFirstButtonReturn});
    choose(*manager, "OutputTray", "Documentfinishing");
    EXPECT_EQ(alerts.lastMessage(),
              "Output Tray Error\r[Output Tray]:[Document Finisher]\r[Paper Type]:[Envelope]\r[Fold]:[Bi-Fold]\r\r"
              "Envelopes cannot be folded.");
}

TEST(SilentRestore, AppliesConflictsWithoutAskingAndWritesTheValue) {
    auto manager = managerWith(finishingKeywords);
    AlertScript alerts;
    auto changed = manager->setStringValueWithRestoreConfliction("ImpositionMode_ImpositionCustomMode", "Booklet");
    ASSERT_TRUE(changed);
    EXPECT_EQ(*changed, (std::vector<std::string>{"ChgPrintPaperSizeType"}));
    EXPECT_EQ(manager->getStringValue("ChgPrintPaperSizeType"), "A3");
    EXPECT_EQ(manager->getStringValue("ImpositionMode_ImpositionCustomMode"), "Booklet");
    EXPECT_FALSE(manager->setStringValueWithRestoreConfliction("OutputTray", "Toptray"));
    EXPECT_EQ(manager->getStringValue("OutputTray"), "Toptray");
    EXPECT_TRUE(alerts.asked().empty());
    VORNMgr empty;
    EXPECT_FALSE(empty.setStringValueWithRestoreConfliction("OutputTray", "Toptray"));
}
