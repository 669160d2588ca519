#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "panes/PDEObject.h"
#include "panes/PrinterDataPDEObject.h"
#include "ppd/PpdFileExt.h"

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
    const auto feederList = scope.manager().getFeederInfoList();
    const PlistArray* feeders = feederList ? feederList->array() : nullptr;
    ASSERT_TRUE(feeders && !feeders->empty() && (*feeders)[0].array());
    EXPECT_EQ((*feeders)[0].array()->back(), PlistValue("Number"));
}

TEST(ResourceLists, ProfileListsOfAnUnknownKindSendNothing) {
    ManagerScope scope(productBundlePath(), false);
    RecordingPDEObject recorder;
    scope.manager().setPDEObject(&recorder);
    EXPECT_EQ(scope.manager().getOutputProfileFileList(2), std::nullopt);
    EXPECT_EQ(scope.manager().getCMYKInputProfileFileList(-1), std::nullopt);
    EXPECT_TRUE(recorder.sent.empty());
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

TEST(ResourceLists, WithoutAnAnswerEveryListIsNothing) {
    ManagerScope scope(productBundlePath(), false);
    EXPECT_EQ(scope.manager().getDeviceList(), std::nullopt);
    RecordingPDEObject recorder;
    scope.manager().setPDEObject(&recorder);
    EXPECT_EQ(scope.manager().getFontList(), std::nullopt);  // the object failed
    PrinterDataPDEObject noPpd(nullptr);
    scope.manager().setPDEObject(&noPpd);
    EXPECT_EQ(scope.manager().getStackerInfoList(), std::nullopt);
    PrinterDataPDEObject printerData(samplePpd());
    EXPECT_EQ(printerData.sendCommand("NoSuchList"), std::nullopt);
}
