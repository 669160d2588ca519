#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "core/TextScrambling.h"
#include "panes/PlainButton.h"
#include "ppd/PpdFileExt.h"

using namespace PaneTest;

TEST(Summary, NamesAndValuesComeFromTheSettingsAndThePpd) {
    ManagerScope scope(productBundlePath());
    const PlistDictionary printOption = {
        {"SecPrint", "True"},          {"SecPrintPassword", "s3cret"}, {"CreasePosition2", "50.0"},
        {"SpotColorCorrection", true}, {"Duplex", "DuplexTumble"},     {"ImpositionTemplate", "Booklet A4.pdf"},
        {"NotAnything", "x"},          {"MailAddress", ""},            {"Ignored", PlistValue()},
    };
    auto summary = scope.manager().summaryInfoFromPrintOption(&printOption);
    ASSERT_TRUE(summary);
    EXPECT_EQ(*summary, (PlistDictionary{{"Secure Print", "On"},
                                         {"Secure Print Password", "********"},
                                         {"Crease 2 Position", "50.0 mm"},
                                         {"Spot Color Correction", "On"},
                                         {"2-Sided Printing", "Short-Edge Binding"},
                                         {"Imposition Template", "Booklet A4.pdf"},
                                         {"Mail Address", ""}}));
    EXPECT_EQ(scope.manager().summaryInfoFromPrintOption(nullptr), std::nullopt);
}

TEST(Summary, TextsFollowTheLanguage) {
    Language german("de");
    ManagerScope scope(productBundlePath());
    const PlistDictionary printOption = {{"SamplePrintMode", "Hold"}, {"QZMediaType", "Transparency"}};
    auto summary = scope.manager().summaryInfoFromPrintOption(&printOption);
    ASSERT_TRUE(summary);
    ASSERT_EQ(summary->size(), 2u);
    EXPECT_EQ(summary->begin()->first, "Ausgabeart");
    EXPECT_EQ(summary->stringFor("Media Type"), std::optional<std::string>("Folie"));
}

TEST(PpdAliases, ChoicesAndTitlesFromThePpd) {
    ManagerScope scope(productBundlePath(), false);
    PanePlugInMgr& manager = scope.manager();
    EXPECT_TRUE(manager.isExistsInPpd("QZMediaType", "Labels"));
    EXPECT_FALSE(manager.isExistsInPpd("QZMediaType", "Cardboard"));
    EXPECT_FALSE(manager.isExistsInPpd("NoOption", "Labels"));
    std::string mainAlias;
    std::string optionAlias;
    ASSERT_TRUE(manager.getAlias(mainAlias, optionAlias, "Duplex", "DuplexNoTumble"));
    EXPECT_EQ(mainAlias, "2-Sided Printing");
    EXPECT_EQ(optionAlias, "Long-Edge Binding");
    EXPECT_FALSE(manager.getAlias(mainAlias, optionAlias, "NoOption", "x"));

    PlainPopUpButton popup;
    PlainButton label;
    ASSERT_TRUE(manager._buildControl(&popup, "DuplexMode", &label));
    ASSERT_EQ(popup.items().size(), 3u);
    EXPECT_EQ(popup.items()[1].title, "2-Sided, Flip on Long Edge");
    EXPECT_EQ(popup.items()[1].representedObject.stringFor("optionKeyword"), std::optional<std::string>("DuplexNoTumble"));
    EXPECT_EQ(label.title(), "2-Sided Print:");
    manager.addMenuItem(popup, "DuplexMode", std::string("Custom"), "Custom");
    EXPECT_EQ(popup.items().back().title, "Custom");
    EXPECT_FALSE(manager._buildControl(&popup, "NoOption", &label));
    EXPECT_EQ(popup.items().size(), 4u);
}

TEST(PpdAliases, TheQueuesPpdReplacesTheBundledOne) {
    ManagerScope scope(productBundlePath(), false);
    auto fixturePpd = PpdFileExt::initWithContentsOfFile(std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/options.ppd");
    ASSERT_TRUE(fixturePpd);
    scope.manager().setPpdFile(std::move(fixturePpd));
    EXPECT_FALSE(scope.manager().isExistsInPpd("QZMediaType", "Labels"));
    // A rebuild for a PPD that cannot be opened fails, and the bundled PPD serves again.
    EXPECT_FALSE(scope.manager().rebuildPanes("NoSuch.ppd", "PanesTree"));
    EXPECT_TRUE(scope.manager().isExistsInPpd("QZMediaType", "Labels"));
}

TEST(DuplexQuestion, DuplexStandsAndTheMediaTypeGivesWay) {
    ManagerScope scope(productBundlePath(), false);
    auto conflict = scope.manager().resloveConflictAlertDuplex(std::string("DuplexNoTumble"), std::string("Transparency"), 1);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->mainKeyword, "QZMediaType");
    EXPECT_EQ(conflict->defaultValue, "Plain");
    EXPECT_EQ(conflict->anotherMainKeyword, std::optional<std::string>("PaperTypeD"));
    EXPECT_EQ(conflict->anotherDefaultValue, std::optional<std::string>("Plain"));
    EXPECT_EQ(conflict->alert.messageText, "The media type \"Transparency\" cannot be printed on both sides.");
    EXPECT_EQ(conflict->alert.informativeText, "Do you want to change the media type to \"Plain\"?\n");
    EXPECT_EQ(conflict->alert.buttons, (std::vector<std::string>{"Change Setting"}));
    // Only the described pairs conflict.
    PanePlugInMgr& manager = scope.manager();
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("None"), std::string("Transparency"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("DuplexNoTumble"), std::string("Plain"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::nullopt, std::string("Labels"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("DuplexTumble"), std::nullopt, 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("SimplexTumble"), std::string("Labels"), 1));
}

TEST(DuplexQuestion, MediaTypeStandsAndTheDuplexSettingGivesWay) {
    Language german("de");
    ManagerScope scope(productBundlePath(), false);
    auto conflict = scope.manager().resloveConflictAlertDuplex(std::string("DuplexTumble"), std::string("Labels"), 2);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->mainKeyword, "DuplexMode");
    EXPECT_EQ(conflict->defaultValue, "None");
    EXPECT_EQ(conflict->anotherMainKeyword, std::optional<std::string>("Duplex"));
    EXPECT_EQ(conflict->anotherDefaultValue, std::optional<std::string>("None"));
    EXPECT_EQ(conflict->alert.informativeText, "Möchten Sie den beidseitigen Druck auf „1-Sided“ ändern?\n");
    EXPECT_NE(conflict->alert.messageText.find("„Labels“"), std::string::npos);
}
