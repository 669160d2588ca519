// A PPD whose printer data is corrupt or enormous: the panes keep their own choices where
// the data cannot be read, the data read is bounded, and a very long list is shown whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "panes/PrinterDataPDEObject.h"
#include "ppd/PpdData.h"
#include "ppd/PpdDataEncoder.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

std::string productPpd() {
    return OstrinTest::readFile(productBundlePath() + "/Contents/Resources/OstrinFlow.ppd");
}

// The product's PPD with each data attribute of the printer keeping its name while its
// text becomes base64 of bytes that do not inflate.
std::string productPpdWithCorruptData() {
    return std::regex_replace(productPpd(),
                              std::regex("^(\\*[A-Za-z-]+[0-9A-F]{4}): \"[A-Za-z0-9+/=]*\"$", std::regex::multiline),
                              "$1: \"AAECAwQFBgcICQoLDA0ODw==\"");
}

// The product's PPD with the data of command replaced by lines.
std::string productPpdWith(const std::string& command, const std::string& lines) {
    return std::regex_replace(productPpd(), std::regex("^\\*" + command + "[0-9A-F]{4}: .*\n", std::regex::multiline),
                              "") +
           lines;
}

std::shared_ptr<PpdFileExt> ppdFrom(const OstrinTest::TemporaryDirectory& folder, const std::string& text) {
    const std::string path = folder.file("press.ppd");
    OstrinTest::writeFile(path, text);
    return PpdFileExt::initWithContentsOfFile(path);
}

}  // namespace

TEST(PrinterDataFailure, CorruptDataLeavesEveryListEmptyAndThePanesAtTheirDefaults) {
    OstrinTest::TemporaryDirectory folder;
    auto ppd = ppdFrom(folder, productPpdWithCorruptData());
    ASSERT_TRUE(ppd);
    ManagerScope scope(productBundlePath());
    PrinterDataPDEObject printerData(ppd);
    PanePlugInMgr& manager = scope.manager();
    manager.setPDEObject(&printerData);
    const PlistDictionary defaults = manager.defaultSettings();

    testing::internal::CaptureStderr();
    manager.willShowAllBundle();
    EXPECT_FALSE(manager.getFeederInfoList());
    EXPECT_FALSE(manager.getImpositionFileList());
    EXPECT_FALSE(manager.getFontList());
    EXPECT_FALSE(manager.getJobResourceSetList());
    const std::string errors = testing::internal::GetCapturedStderr();
    EXPECT_NE(errors.find("ERROR: inflate returned -3"), std::string::npos);

    EXPECT_EQ(manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false), defaults);
    auto templates = scope.control("Layout", "ImpositionTemplate");
    ASSERT_TRUE(templates);
    EXPECT_EQ(popupChoices(*templates), std::vector<std::string>{""});
}

TEST(PrinterDataFailure, EnormousDataIsCutAtSixteenMegabytesAndIsNoList) {
    auto attributes = PpdDataEncoder::encode("FeederInfoList", std::string(40u << 20, '<'));
    ASSERT_TRUE(attributes);
    OstrinTest::TemporaryDirectory folder;
    auto ppd = ppdFrom(folder, productPpdWith("FeederInfoList", PpdDataEncoder::ppdLines(*attributes)));
    ASSERT_TRUE(ppd);
    EXPECT_EQ(PpdData::ppdxReadData(ppd->ppdFile(), "FeederInfoList")->size(), 16777216u);
    PrinterDataPDEObject printerData(ppd);
    EXPECT_FALSE(printerData.sendCommand("FeederInfoList"));
    EXPECT_TRUE(printerData.sendCommand("StackerInfoList"));
}

TEST(PrinterDataFailure, VeryLongListIsShownWhole) {
    constexpr int Templates = 20000;
    PlistArray rows;
    for (int index = 0; index < Templates; ++index)
        rows.emplace_back(PlistArray{"Template " + std::to_string(index) + ".pdf", "comment", "2024/01/01 00:00:00"});
    auto attributes = PpdDataEncoder::encode("JobResource-IMPOSITION",
                                             PlistIO::serialize(PlistValue(rows), PlistIO::Format::Binary));
    ASSERT_TRUE(attributes);
    OstrinTest::TemporaryDirectory folder;
    auto ppd = ppdFrom(folder, productPpdWith("JobResource-IMPOSITION", PpdDataEncoder::ppdLines(*attributes)));
    ASSERT_TRUE(ppd);
    ManagerScope scope(productBundlePath());
    PrinterDataPDEObject printerData(ppd);
    scope.manager().setPDEObject(&printerData);
    scope.manager().willShowAllBundle();
    auto templates = scope.control("Layout", "ImpositionTemplate");
    ASSERT_TRUE(templates);
    const auto choices = popupChoices(*templates);
    ASSERT_EQ(choices.size(), Templates + 1u);
    EXPECT_EQ(choices[1], "Template 0.pdf");
    EXPECT_EQ(choices.back(), "Template 19999.pdf");
}
