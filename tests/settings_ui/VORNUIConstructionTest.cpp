#include <gtest/gtest.h>

#include <filesystem>

#include "SettingsTestSupport.h"

using namespace SettingsTest;

namespace {

PlistDictionary described(const std::string& keyword) {
    return *fixtureDescriptions().find(keyword)->dictionary();
}

std::shared_ptr<VORNUI> buildFrom(const PlistDictionary& description, std::shared_ptr<Bundle> bundle = nullptr) {
    auto control = std::make_shared<VORNUI>();
    control->setControlDictionary(&description, bundle ? bundle : fixtureBundle());
    control->updateControl();
    return control;
}

double heightOf(PlistDictionary description, std::initializer_list<PlistDictionary::Entry> changes = {},
                std::initializer_list<const char*> removed = {}) {
    for (const auto& [key, value] : changes) description.set(key, value);
    for (const char* key : removed) description.erase(key);
    return buildFrom(description)->getControlHeight();
}

std::string makeBundle(const std::string& path, const PlistDictionary& info) {
    std::filesystem::create_directories(path + "/Contents/Resources");
    PlistIO::writeFile(path + "/Contents/Info.plist", info);
    return path;
}

}  // namespace

TEST(ControlHeight, RadioGroupsCountTheirChoices) {
    const PlistDictionary rotation = described("RotateSheet");
    EXPECT_EQ(heightOf(rotation, {}, {"blank_line_count"}), 84);
    EXPECT_EQ(heightOf(rotation), 108);
    EXPECT_EQ(heightOf(rotation, {{"text", ""}}), 84);
    EXPECT_EQ(buildControl("PageOrder_new")->getControlHeight(), 104);
    EXPECT_EQ(buildControl("QZMediaFeed")->getControlHeight(), 0);
}

TEST(ControlHeight, CheckBoxAddsAGroupTitleRowOnlyForGroupMembers) {
    const PlistDictionary mail = described("MailNotifyJobEnd");
    EXPECT_EQ(heightOf(mail), 48);
    EXPECT_EQ(heightOf(mail, {}, {"isGroupMain"}), 24);
    EXPECT_EQ(heightOf(mail, {{"isGroupMain", true}}), 24);
    EXPECT_EQ(buildControl("GroupFinishing")->lineCount(), 2u);
    EXPECT_EQ(buildControl("GroupFinishing")->getControlHeight(), 48);
}

TEST(ControlHeight, FieldsPopupsSlidersAndDatePickers) {
    EXPECT_EQ(buildControl("SecPrintPassword")->getControlHeight(), 72);
    EXPECT_EQ(buildControl("NumCopies")->getControlHeight(), 24);
    EXPECT_EQ(buildControl("HairLineWarningPoint")->getControlHeight(), 96);
    EXPECT_EQ(buildControl("StapleMode")->getControlHeight(), 48);
    EXPECT_EQ(buildControl("TrimRatio")->getControlHeight(), 24);
    EXPECT_EQ(buildControl("HoldUntil")->getControlHeight(), 179);
    EXPECT_EQ(buildControl("PrintAt")->getControlHeight(), 203);
    EXPECT_EQ(heightOf(described("PrintAt"), {}, {"text"}), 203);
    EXPECT_EQ(heightOf(described("StapleMode"), {{"control_type", "Stepper"}, {"blank_line_count", "3"}}), 0);
}

// Number fields take their unit and step from the digits of their limits; text fields
// their format code and length from the description (256 without one).
TEST(FieldConstruction, UnitStepAndLengthComeFromTheDescription) {
    const std::tuple<const char*, std::uint32_t, double> numbers[] = {
        {"CreasePosition1", VORNTextField::UnitHundredths, 0.01},
        {"Magnification", VORNTextField::UnitOneDecimal, 0.1},
        {"NumCopies", VORNTextField::UnitInteger, 1},
        {"HairLineWarningPoint", VORNTextField::UnitThousandths, 0.001}};
    for (const auto& [keyword, unit, increment] : numbers) {
        const auto control = buildControl(keyword);
        ASSERT_TRUE(control->stepper()) << keyword;
        EXPECT_DOUBLE_EQ(control->stepper()->increment, increment) << keyword;
        EXPECT_EQ(control->textField()->unit(), unit) << keyword;
        EXPECT_TRUE(control->textField()->isNum()) << keyword;
    }
    const auto crease = buildControl("CreasePosition1");
    EXPECT_DOUBLE_EQ(crease->textField()->minValue(), 0.5);
    EXPECT_DOUBLE_EQ(crease->stepper()->maxValue, 10.25);
    PlistDictionary tenths = described("CreasePosition1");
    tenths.set("max", 10);
    EXPECT_EQ(buildFrom(tenths)->textField()->unit(), VORNTextField::UnitOneDecimal);

    const std::pair<const char*, std::uint32_t> texts[] = {{"MailAddress", VORNTextField::UnitEmail},
                                                           {"PhysicalPageRange", VORNTextField::UnitPageList},
                                                           {"SpTonerPageRangeFront", VORNTextField::UnitSpecialTonerPages},
                                                           {"SecPrintPassword", VORNTextField::UnitAscii},
                                                           {"PaperColorCustomName", VORNTextField::UnitText}};
    for (const auto& [keyword, unit] : texts) {
        const auto control = buildControl(keyword);
        EXPECT_EQ(control->textField()->unit(), unit) << keyword;
        EXPECT_EQ(control->textField()->keyword(), keyword);
    }
    EXPECT_EQ(buildControl("MailAddress")->textField()->digit(), 40u);
    EXPECT_TRUE(buildControl("SecPrintPassword")->textField()->isSecure());
    PlistDictionary unlimited = described("PaperColorCustomName");
    unlimited.erase("max_digit");
    EXPECT_EQ(buildFrom(unlimited)->textField()->digit(), 256u);
}

TEST(Construction, TitleFollowsThePaneAndMessagesUseTheirOwnName) {
    EXPECT_EQ(buildControl("QZMediaFeed", "Layout")->texts().title, "Feed Direction");
    EXPECT_EQ(buildControl("QZMediaFeed", "Page")->texts().title, "Feed");
    const auto density = buildControl("ImageDensity");
    EXPECT_EQ(density->mainKeyword(), "ImageDensity");
    EXPECT_EQ(density->controlType(), VORNUI::Type::Slider);
    EXPECT_EQ(buildControl("NumCopies")->mainKeywordText(), "Copies");
    EXPECT_TRUE(buildControl("NumCopies")->isEnableButton());
    const auto mail = buildControl("MailNotifyJobEnd");
    EXPECT_EQ(mail->texts().groupTitle, "Notification");
    EXPECT_FALSE(mail->isGroupMain());
}

TEST(Construction, TitlesAreLocalisedThroughTheUiTable) {
    Language german("de");
    const auto control = buildFrom(PlistDictionary{{"mainKeyword", "Confirm"}, {"control_type", "CheckBox"},
                                                   {"text", "Yes"}, {"text_for_message", "No"}},
                                   Bundle::bundleWithPath(productBundlePath()));
    EXPECT_EQ(control->texts().title, "Ja");
    EXPECT_EQ(control->mainKeywordText(), "Nein");
    EXPECT_EQ(buildControl("CreasePosition1")->texts().descText, "mm (0,5 - 10,25)");
}

TEST(Construction, IconsComeFromTheBundleAndMissingOnesStayEmpty) {
    const auto order = buildControl("PageOrder_new");
    EXPECT_EQ(std::filesystem::path(order->icons().group).filename(), "order_group.png");
    EXPECT_EQ(std::filesystem::path(order->radioCells()[0].iconPath).filename(), "PageOrder_new_FaceDown.png");
    EXPECT_EQ(order->radioCells()[2].iconPath, "");
    const auto blank = buildControl("PrintBlankPages");
    EXPECT_EQ(std::filesystem::path(blank->icons().stateTrue).filename(), "PrintBlankPages_True.png");
    EXPECT_EQ(std::filesystem::path(blank->icons().group).filename(), "group_icon.png");
    const auto density = buildControl("ImageDensity");
    EXPECT_EQ(std::filesystem::path(density->icons().sliderMin).filename(), "density_min.png");
    EXPECT_EQ(density->icons().sliderMax, "");
    EXPECT_EQ(density->texts().minIconText, "Light");
    EXPECT_EQ(buildControl("StapleMode")->icons().group, "");
}

TEST(Construction, ChildrenFollowTheLanguageAndStackInRows) {
    {
        Language english("en");
        const auto toner = buildControl("UseSpToner");
        ASSERT_EQ(toner->childControls().size(), 2u);
        EXPECT_EQ(toner->childControls()[0]->mainKeyword(), "SpTonerUseMode");
    }
    Language german("de-DE");
    const auto toner = buildControl("UseSpToner");
    ASSERT_EQ(toner->childControls().size(), 3u);
    const auto& children = toner->childControls();
    EXPECT_EQ(children[0]->frame(), (ViewFrame{16, 72, 224, 48}));
    EXPECT_EQ(children[1]->frame(), (ViewFrame{240, 72, 240, 24}));
    EXPECT_EQ(children[2]->frame(), (ViewFrame{0, 120, 480, 48}));
    EXPECT_EQ(children[0]->superview(), toner.get());
    EXPECT_DOUBLE_EQ(toner->maxHeight(), 168);
}

TEST(Construction, MissingDescriptionGivesAnEmptyControl) {
    auto control = std::make_shared<VORNUI>();
    control->setControlDictionary(nullptr, fixtureBundle());
    control->updateControl();
    EXPECT_EQ(control->controlType(), VORNUI::Type::Unknown);
    EXPECT_EQ(control->getControlHeight(), 0);
    EXPECT_FALSE(control->getStringValue());
    EXPECT_TRUE(control->childControls().empty());
    EXPECT_EQ(control->getConflictDictionary(), nullptr);
    const auto stray = buildFrom(PlistDictionary{{"mainKeyword", "Stray"}, {"control_type", "CheckBox"},
                                                 {"other_controls", PlistArray{"NoSuchChild", "MailAddress"}}});
    ASSERT_EQ(stray->childControls().size(), 1u);
    EXPECT_EQ(stray->childControls()[0]->mainKeyword(), "MailAddress");
}

TEST(Construction, DescriptionFileComesFromTheHostBundle) {
    OstrinTest::TemporaryDirectory folder;
    const std::string host = makeBundle(folder.file("Host.bundle"), PlistDictionary{{"QVPOD", "Panel"}});
    OstrinTest::writeFile(host + "/Contents/Resources/Panel.plist", "<plist><dict/></plist>");
    const std::string pane = makeBundle(host + "/Contents/PlugIns/Finishing.bundle", PlistDictionary{});
    OstrinTest::writeFile(pane + "/Contents/Resources/UI.plist", "<plist><dict/></plist>");
    const std::string lonely = makeBundle(folder.file("Lonely.bundle"), PlistDictionary{{"QVPOD", "Missing"}});

    VORNUI control;
    control.setControlDictionary(nullptr, Bundle::bundleWithPath(pane));
    EXPECT_EQ(control.getUIFilePath(), host + "/Contents/Resources/Panel.plist");
    control.setControlDictionary(nullptr, Bundle::bundleWithPath(host));
    EXPECT_EQ(control.getUIFilePath(), host + "/Contents/Resources/Panel.plist");
    std::filesystem::remove(host + "/Contents/Resources/Panel.plist");
    control.setControlDictionary(nullptr, Bundle::bundleWithPath(pane));
    EXPECT_EQ(control.getUIFilePath(), pane + "/Contents/Resources/UI.plist");
    control.setControlDictionary(nullptr, Bundle::bundleWithPath(lonely));
    EXPECT_FALSE(control.getUIFilePath());
    control.setControlDictionary(nullptr, nullptr);
    EXPECT_FALSE(control.getUIFilePath());
}
