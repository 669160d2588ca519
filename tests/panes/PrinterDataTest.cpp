#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <stdexcept>
#include <string>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "panes/PDEObject.h"
#include "panes/PrinterDataPDEObject.h"
#include "ppd/PpdData.h"
#include "ppd/PpdDataEncoder.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

using ListOperation = std::function<std::optional<PlistValue>(PanePlugInMgr&)>;

std::shared_ptr<PpdFileExt> samplePpd() {
    return PpdFileExt::initWithContentsOfFile(productBundlePath() + "/Contents/Resources/OstrinFlow.ppd");
}

// The list the sample PPD carries for command, as its source property list has it.
PlistValue sourceList(const std::string& command) {
    const std::string path = std::string(OSTRIN_TEST_DATA_DIR) + "/../../resources/ppd-data/" + command + ".plist";
    auto list = PlistIO::readFile(path);
    if (!list) throw std::runtime_error("no source list " + path);
    return *list;
}

// Records the commands it is sent and answers each with its name, failing for "Font".
class RecordingPDEObject : public PDEObject {
public:
    std::optional<PlistValue> sendCommand(const std::string& command) override {
        sent.push_back(command);
        if (command == "Font") throw std::runtime_error("the printer went away");
        return PlistValue(command);
    }
    std::vector<std::string> sent;
};

const std::vector<std::pair<const char*, ListOperation>>& listOperations() {
    static const std::vector<std::pair<const char*, ListOperation>> operations = {
        {"StackerInfoList", &PanePlugInMgr::getStackerInfoList},
        {"FeederInfoList", &PanePlugInMgr::getFeederInfoList},
        {"DeviceList", &PanePlugInMgr::getDeviceList},
        {"JobFolder", &PanePlugInMgr::getJobFolderList},
        {"PrePostDevice", &PanePlugInMgr::getPrePostDeviceList},
        {"CmsSpotGetAll", &PanePlugInMgr::getCmsSpotGetAllListData},
        {"ColorSubst", &PanePlugInMgr::getColorSubstList},
        {"JobResource-COLOR_PATCH", &PanePlugInMgr::getColorPatchFileList},
        {"JobResource-COLOR_PATCH", &PanePlugInMgr::getColorPatchFileListWithResourceSet},
        {"JobResource-NOTE", &PanePlugInMgr::getNoteFileList},
        {"JobResource-NOTE", &PanePlugInMgr::getNoteFileListWithResourceSet},
        {"JobResource-CUSTOM_NOTE", &PanePlugInMgr::getCustomNoteFileList},
        {"JobResource-CUSTOM_NOTE", &PanePlugInMgr::getCustomNoteFileListWithResourceSet},
        {"JobResource-PAGENATION", &PanePlugInMgr::getPagenationFileList},
        {"JobResource-PAGENATION", &PanePlugInMgr::getPagenationFileListWithResourceSet},
        {"JobResource-FORM", &PanePlugInMgr::getFormFileList},
        {"JobResource-FORM", &PanePlugInMgr::getFormFileListWithResourceSet},
        {"JobResource-SPECIAL_TONER", &PanePlugInMgr::getSpecialTonerFileList},
        {"JobResource-SPECIAL_TONER", &PanePlugInMgr::getSpecialTonerFileListWithResourceSet},
        {"JobResource-WATERMARK", &PanePlugInMgr::getWaterMarkFileList},
        {"JobResource-WATERMARK", &PanePlugInMgr::getWaterMarkFileListWithResourceSet},
        {"JobResource-TRAPPING", &PanePlugInMgr::getTrappingFileList},
        {"JobResource-TRAPPING", &PanePlugInMgr::getTrappingFileListWithResourceSet},
        {"JobResource-NORMALIZER", &PanePlugInMgr::getNormalizerFileList},
        {"JobResource-NORMALIZER", &PanePlugInMgr::getNormalizerFileListWithResourceSet},
        {"JobResource-IMPOSITION", &PanePlugInMgr::getImpositionFileList},
        {"JobResource-IMPOSITION", &PanePlugInMgr::getImpositionFileListWithResourceSet},
        {"Font", &PanePlugInMgr::getFontList},
        {"OutputProfileFile-MEASUREMENT", [](PanePlugInMgr& m) { return m.getOutputProfileFileList(0); }},
        {"OutputProfileFile-ICC", [](PanePlugInMgr& m) { return m.getOutputProfileFileList(1); }},
        {"CMYKInputProfileFile-MEASUREMENT", [](PanePlugInMgr& m) { return m.getCMYKInputProfileFileList(0); }},
        {"CMYKInputProfileFile-ICC", [](PanePlugInMgr& m) { return m.getCMYKInputProfileFileList(1); }},
        {"DensityAdjustProfile", &PanePlugInMgr::getDensityAdjustProfileList},
        {"UserTrcProfile", &PanePlugInMgr::getUserTrcProfileList},
        {"RGBInputProfileFile", &PanePlugInMgr::getRGBInputProfileFileList},
        {"DeviceLinkFile", &PanePlugInMgr::getDeviceLinkFileList},
        {"JobResourceSet", &PanePlugInMgr::getJobResourceSetList},
        {"JobResourceSetLinkage", &PanePlugInMgr::getJobResourceSetListNew},
        {"CalibFile", &PanePlugInMgr::getCalibFileList},
    };
    return operations;
}

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

TEST(ResourceLists, EachListIsThePrintersDataOfItsCommand) {
    ManagerScope scope(productBundlePath(), false);
    PrinterDataPDEObject printerData(samplePpd());
    scope.manager().setPDEObject(&printerData);
    for (const auto& [command, operation] : listOperations()) {
        auto list = operation(scope.manager());
        ASSERT_TRUE(list) << command;
        EXPECT_EQ(*list, sourceList(command)) << command;
    }
}

TEST(ResourceLists, PrimingAsksForEveryListButSpecialTonerAndLinkedSets) {
    ManagerScope scope(productBundlePath(), false);
    RecordingPDEObject recorder;
    scope.manager().setPDEObject(&recorder);
    scope.manager().getAllList();
    EXPECT_EQ(recorder.sent,
              (std::vector<std::string>{
                  "CalibFile", "JobResourceSet", "DeviceLinkFile", "RGBInputProfileFile", "UserTrcProfile",
                  "DensityAdjustProfile", "CMYKInputProfileFile-MEASUREMENT", "CMYKInputProfileFile-ICC",
                  "OutputProfileFile-MEASUREMENT", "OutputProfileFile-ICC", "Font", "JobResource-IMPOSITION",
                  "JobResource-NORMALIZER", "JobResource-TRAPPING", "JobResource-WATERMARK", "JobResource-FORM",
                  "JobResource-PAGENATION", "JobResource-CUSTOM_NOTE", "JobResource-NOTE", "JobResource-COLOR_PATCH",
                  "ColorSubst", "CmsSpotGetAll", "PrePostDevice", "JobFolder", "DeviceList", "FeederInfoList",
                  "StackerInfoList"}));
}

TEST(ResourceLists, WithoutAnAnswerOrOfAnUnknownKindEveryListIsNothing) {
    ManagerScope scope(productBundlePath(), false);
    EXPECT_EQ(scope.manager().getDeviceList(), std::nullopt);
    RecordingPDEObject recorder;
    scope.manager().setPDEObject(&recorder);
    EXPECT_EQ(scope.manager().getFontList(), std::nullopt);  // the object failed
    // Profile lists of an unknown kind send nothing.
    recorder.sent.clear();
    EXPECT_EQ(scope.manager().getOutputProfileFileList(2), std::nullopt);
    EXPECT_EQ(scope.manager().getCMYKInputProfileFileList(-1), std::nullopt);
    EXPECT_TRUE(recorder.sent.empty());
    PrinterDataPDEObject noPpd(nullptr);
    scope.manager().setPDEObject(&noPpd);
    EXPECT_EQ(scope.manager().getStackerInfoList(), std::nullopt);
    PrinterDataPDEObject printerData(samplePpd());
    EXPECT_EQ(printerData.sendCommand("NoSuchList"), std::nullopt);
}

// A PPD whose printer data is corrupt or enormous: the panes keep their own choices where
// the data cannot be read, the data read is bounded, and a very long list is shown whole.
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
