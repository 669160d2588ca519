#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"

using namespace PaneTest;

namespace {

using Keys = std::vector<std::string>;

// A complete job of the press: secure printing off, authentication by login, a stock
// tray with its name, special toner on both sides with a front page range.
PlistDictionary realisticJob() {
    return *PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"))->dictionary();
}

PlistDictionary with(PlistDictionary printOption, const PlistDictionary& changes) {
    for (const auto& [key, value] : changes) printOption.set(key, value);
    return printOption;
}

Keys failures(const PlistDictionary& printOption) { return PanePlugInMgr::failedConsistencyChecks(printOption); }

}  // namespace

TEST(ConsistencyCheck, CompleteJobsPassWithoutAnAlert) {
    ManagerScope scope(productBundlePath());
    AlertScript alerts;
    EXPECT_TRUE(scope.manager().isPrintOptionConsistencyCheck(realisticJob()));
    EXPECT_TRUE(scope.manager().isPrintOptionConsistencyCheck(scope.manager().defaultSettings()));
    EXPECT_TRUE(scope.manager().isPrintOptionConsistencyCheck({}));
    EXPECT_TRUE(alerts.asked().empty());
}

TEST(ConsistencyCheck, OneAlertListsSeveralFailuresInCheckOrder) {
    Language german("de");
    ManagerScope scope(productBundlePath(), false);
    AlertScript alerts;
    // Given in reverse of the check order.
    const PlistDictionary job = with(realisticJob(), {{"SpTonerPageRangeFront", "7-3"},
                                                      {"RenderingProfileName", ""},
                                                      {"ImpositionMode_ImpositionCustomMode", "Template"},
                                                      {"StkName", ""},
                                                      {"MailAddress", ""}});
    EXPECT_FALSE(scope.manager().isPrintOptionConsistencyCheck(job));
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.asked()[0].messageText, "Einige Einstellungen sind unvollständig:");
    EXPECT_EQ(alerts.asked()[0].buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(alerts.asked()[0].informativeText.back(), '\r');
    EXPECT_EQ(linesOf(alerts.asked()[0].informativeText),
              (Keys{"Geben Sie die E-Mail-Adresse für die Benachrichtigung bei Auftragsende ein.",
                    "Geben Sie den Papiervorratsnamen für die Papierquelle ein.",
                    "Wählen Sie eine Ausschießvorlage.",
                    "Wählen Sie ein Ausgabeprofil.",
                    "Der Seitenbereich für Sondertoner auf der Vorderseite ist ungültig."}));
}

TEST(ConsistencyCheck, TriggersHoldOnlyForTheirExactValues) {
    const std::pair<PlistDictionary, Keys> cases[] = {
        {{{"AuthJobUserId", ""}}, {}},  // a login needs no id
        {{{"AuthJobUserId", ""}, {"AuthJobUserIdType", ""}}, {"Alert_AuthJobUserId"}},
        {{{"AuthJobUserId", ""}, {"AuthJobUserIdType", "ID"}}, {"Alert_AuthJobUserId"}},
        {{{"RecordDiv", "Off"}, {"RecordSpec", "True"}, {"RecordSpecNumber", ""}}, {}},
        {{{"RecordDiv", "Page"}, {"RecordSpec", "True"}, {"RecordSpecNumber", ""}}, {"Alert_RecordSpecNumber"}},
        {{{"RenderingProfile", "True"}, {"RenderingProfileType", "PrinterStandard"}, {"RenderingProfileName", ""}}, {}},
        {{{"RenderingProfile", "True"}, {"RenderingProfileType", ""}, {"RenderingProfileName", ""}}, {}},
        {{{"RenderingProfile", "False"}, {"RenderingProfileType", ""}, {"RenderingProfileName", ""}},
         {"Alert_RenderingProfileName"}},
        {{{"MailNotifyJobEnd", "true"}, {"MailAddress", ""}}, {}},
        {{{"CmykColorCorrection", "True"}, {"CmykColorCorrectionProfileType", "DeviceLink"},
          {"CmykDeviceLinkProfile", ""}, {"CmykImageProfileName", ""}},
         {"Alert_CmykDeviceLinkProfile"}},
    };
    for (const auto& [changes, expected] : cases) EXPECT_EQ(failures(with(realisticJob(), changes)), expected);
}

TEST(ConsistencyCheck, ValuesAreReadAsTheSettingsHoldThem) {
    EXPECT_EQ(failures({{"SecPrint", true}}), Keys{"Alert_SecPrintPassword"});
    EXPECT_EQ(failures({{"SecPrint", true}, {"SecPrintPassword", 1234}}), Keys{});
    EXPECT_EQ(failures({{"SecPrint", false}}), Keys{});
    EXPECT_EQ(failures({{"SpotColorCorrection", true}, {"SpotColorCorrectionProfile", "Profile"}}),
              Keys{"Alert_SpotColorCorrectionProfileName"});
    EXPECT_EQ(failures({{"SecPrint", PlistArray{}}}), Keys{});
}

TEST(ConsistencyCheck, SpecialTonerSidesAreCheckedByTheirUseMode) {
    const PlistDictionary job = with(realisticJob(), {{"SpTonerPageRangeFront", ""},
                                                      {"SpTonerPageRangeModeBack", "Appoint"},
                                                      {"SpTonerPageRangeBack", "0"},
                                                      {"SpTonerOverlayBack", "True"},
                                                      {"SpTonerOverlayModeBack", "SpecifiedObject"},
                                                      {"SpTonerPlateReplaceSpotFront", "Specified"}});
    EXPECT_EQ(failures(job), (Keys{"Alert_SpTonerPageRangeFront", "Alert_PlateReplaceSpotFront",
                                   "Alert_SpTonerPageRangeBack_Incorrect", "Alert_SpecifiedObjectBack"}));
    EXPECT_EQ(failures(with(job, {{"SpTonerUseMode", "SpBack"}})),
              (Keys{"Alert_SpTonerPageRangeBack_Incorrect", "Alert_SpecifiedObjectBack"}));
    EXPECT_EQ(failures(with(job, {{"SpTonerUseMode", "SpFront"}})),
              (Keys{"Alert_SpTonerPageRangeFront", "Alert_PlateReplaceSpotFront"}));
    EXPECT_EQ(failures(with(job, {{"UseSpToner", "False"}})), Keys{});
    EXPECT_EQ(failures(with(job, {{"SpTonerPageRangeBack", "1-200001"}, {"SpTonerOverlayObjectBackText", "True"}})),
              (Keys{"Alert_SpTonerPageRangeFront", "Alert_PlateReplaceSpotFront", "Alert_SpTonerPageRangeBack_MaxPage"}));
}

TEST(ConsistencyCheck, SpecialTonerPageRanges) {
    const std::vector<std::pair<std::string, int>> cases = {
        {"1-5,8", 0}, {"5", 0},      {"3-3", 0},           {"200000", 0},  {" 2-4", 0},
        {"5-3", 2},   {"1--3", 2},   {"0", 2},             {"3,2", 2},     {"1,,2", 2},
        {"1,", 2},    {"abc", 2},    {"2-x", 2},           {"1-200001", 1}, {"99999999999", 1},
        {"1-3-5", 2}, {"4-", 0},     {"200001-1", 1},
    };
    for (const auto& [range, expected] : cases)
        EXPECT_EQ(PanePlugInMgr::checkPageRangeForSpecialToner(range), expected) << range;
}
