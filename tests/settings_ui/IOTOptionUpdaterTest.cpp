#include <gtest/gtest.h>

#include "SettingsTestSupport.h"
#include "settings_ui/IOTOptionUpdater.h"

using namespace SettingsTest;

namespace {

bool updateWithPunch(VORNUI& control, const PlistDictionary& device) {
    IOTOptionUpdater::Groups devices, options;
    IOTOptionUpdater::getPunchOptionsWithKeyDevices(devices, options);
    return IOTOptionUpdater::updatePopupButtonComponent(&control, &device, &devices, &options);
}

}  // namespace

TEST(IOTOptionUpdater, OnlyTheExactTextTrueCountsAsInstalled) {
    const PlistDictionary device{{"quadPunch", "TRUE"}, {"triplePunch", "1"}, {"doublePunch", "True"}, {"zFold", "true"}};
    EXPECT_FALSE(IOTOptionUpdater::isEnableWithDict(&device, {"quadPunch", "triplePunch", "doublePunch"}));
    EXPECT_TRUE(IOTOptionUpdater::isEnableWithDict(&device, {"quadPunch", "zFold"}));
    EXPECT_FALSE(IOTOptionUpdater::isEnableWithDict(nullptr, {"zFold"}));
    EXPECT_FALSE(IOTOptionUpdater::isEnableWithDict(&device, {}));
    const PlistDictionary empty;
    EXPECT_FALSE(IOTOptionUpdater::isEnableWithDict(&empty, {"zFold"}));
}

TEST(IOTOptionUpdater, PunchKeepsTheChoicesOfItsDevicesOrIsHidden) {
    auto punch = buildControl("Punch_PunchHoles");
    EXPECT_TRUE(updateWithPunch(*punch, PlistDictionary{{"quadPunch", "true"}, {"doublePunch", "false"}}));
    EXPECT_FALSE(punch->isHidden());
    EXPECT_EQ(popupChoices(*punch), (std::vector<std::string>{"None", "LeftHoles4", "TopHoles4", "MixSizeHoles4"}));
    punch->selectItemAtIndex(2);
    EXPECT_EQ(punch->getStringValue(), "TopHoles4");
    auto hidden = buildControl("Punch_PunchHoles");
    EXPECT_FALSE(updateWithPunch(*hidden, PlistDictionary{{"quadPunch", "True"}, {"offset", "true"}}));
    EXPECT_TRUE(hidden->isHidden());
    EXPECT_EQ(popupChoices(*hidden).size(), 8u);
    IOTOptionUpdater::Groups devices, options;
    auto staple = buildControl("StapleMode");
    EXPECT_FALSE(IOTOptionUpdater::updatePopupButtonComponent(staple.get(), nullptr, &devices, &options));
    EXPECT_TRUE(staple->isHidden());
    EXPECT_FALSE(IOTOptionUpdater::updatePopupButtonComponent(nullptr, nullptr, nullptr, nullptr));
}

TEST(IOTOptionUpdater, DeviceListRowsBecomeADeviceDictionary) {
    const PlistValue rows = PlistArray{PlistArray{"true", "saddleFoldStaple"}, PlistArray{"false", "saddleFoldNoStaple"},
                                       PlistArray{"lonely"}, "junk"};
    const PlistDictionary device = IOTOptionUpdater::convertArrayToDict(rows);
    EXPECT_EQ(device.size(), 2u);
    EXPECT_TRUE(IOTOptionUpdater::hasStapleForTCBMWithDevice(device));
    EXPECT_FALSE(IOTOptionUpdater::isFoldForTCBM(device));
    EXPECT_TRUE(IOTOptionUpdater::convertArrayToDict(PlistValue("text")).empty());
}

TEST(IOTOptionUpdater, OutputTraysFollowTheStackersReported) {
    PlistArray trays;
    IOTOptionUpdater::getOutputTrayArray(
        trays, PlistArray{PlistArray{"5", "Type"}, PlistArray{"99", "Type"}, PlistDictionary{{"Type", "12"}}, "2"});
    EXPECT_EQ(trays, (PlistArray{PlistArray{"Top Tray", "Toptray"}, PlistArray{"外部フィニッシャー", "Documentfinishing"},
                                 PlistArray{"自動選択", "Auto"}}));
}

TEST(IOTOptionUpdater, InputTraysFramedByPrefixAndSuffixCodesShowTheirOwnTexts) {
    PlistDictionary codes;
    IOTOptionUpdater::getInputSlotDict(codes, true, false);
    EXPECT_EQ(codes.stringFor("0", ""), "AutoSelect");
    EXPECT_FALSE(codes.contains("9"));
    IOTOptionUpdater::getInputSlotDict(codes, false, true);
    EXPECT_EQ(codes.stringFor("0", ""), "TrayAuto");
    EXPECT_EQ(codes.stringFor("9", ""), "TrayInterposer");

    PlistArray trays;
    const PlistValue feeders = PlistArray{PlistArray{"1", "Number"}, PlistArray{"5", "Number"}, PlistArray{"9", "Number"}};
    IOTOptionUpdater::getInputSlotArray(trays, feeders, {"0"}, {"25"}, true, false);
    std::vector<std::string> names;
    for (const auto& entry : trays) names.push_back((*entry.array())[1].stringOr(""));
    EXPECT_EQ(names, (std::vector<std::string>{"AutoSelect", "Tray1", "TrayMSI", "TrayStk"}));
    IOTOptionUpdater::getInputSlotArray(trays, feeders, {"0"}, {}, true);
    EXPECT_EQ((*trays.front().array())[1].stringOr(""), "TrayAuto");
    EXPECT_EQ((*trays.back().array())[1].stringOr(""), "TrayInterposer");
    auto slot = buildControl("QVInputSlot");
    IOTOptionUpdater::getInputSlotArray(trays, PlistArray{PlistArray{"2", "Number"}, PlistArray{"4", "Number"}}, {"0"},
                                        {"25"}, true, false);
    IOTOptionUpdater::updateInputSlotVORNUI(*slot, trays);
    ASSERT_EQ(slot->popupItems().size(), 4u);
    EXPECT_EQ(slot->popupItems()[1].title, "Tray 2");
    EXPECT_EQ(slot->popupItems()[2].title, "Tray4");
    EXPECT_EQ(slot->popupItems()[3].title, "Stock Paper");
    slot->setStringValue("TrayStk");
    EXPECT_EQ(slot->getStringValue(), "TrayStk");
    slot->setStringValue("Tray3");
    EXPECT_EQ(slot->getUnsportValue(), "Tray3");
}
