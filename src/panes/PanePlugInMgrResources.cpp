#include "core/Diagnostics.h"
#include "panes/PDEObject.h"
#include "panes/PanePlugInMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Every list the dialog extension object keeps, in the order it is primed. The special
// toner files and the linked resource sets are fetched only when a pane asks for them.
constexpr const char* primedCommands[] = {
    "CalibFile", "JobResourceSet", "DeviceLinkFile", "RGBInputProfileFile", "UserTrcProfile",
    "DensityAdjustProfile", "CMYKInputProfileFile-MEASUREMENT", "CMYKInputProfileFile-ICC",
    "OutputProfileFile-MEASUREMENT", "OutputProfileFile-ICC", "Font", "JobResource-IMPOSITION",
    "JobResource-NORMALIZER", "JobResource-TRAPPING", "JobResource-WATERMARK", "JobResource-FORM",
    "JobResource-PAGENATION", "JobResource-CUSTOM_NOTE", "JobResource-NOTE", "JobResource-COLOR_PATCH",
    "ColorSubst", "CmsSpotGetAll", "PrePostDevice", "JobFolder", "DeviceList", "FeederInfoList",
    "StackerInfoList",
};

// Profile lists by kind: 0 measurement, 1 ICC.
const char* profileCommand(int kind, const char* measurement, const char* icc) {
    if (kind == 0) return measurement;
    if (kind == 1) return icc;
    return nullptr;
}

}  // namespace

std::optional<PlistValue> PanePlugInMgr::_sendCommand(const char* command) {
    if (!_PDEObject || !command) return std::nullopt;
    try {
        return _PDEObject->sendCommand(command);
    } catch (...) {
        Diagnostics::log(std::string("### sendCommand failed: ") + command);
        return std::nullopt;
    }
}

std::optional<PlistValue> PanePlugInMgr::getStackerInfoList() { return _sendCommand("StackerInfoList"); }

std::optional<PlistValue> PanePlugInMgr::getFeederInfoList() { return _sendCommand("FeederInfoList"); }

std::optional<PlistValue> PanePlugInMgr::getDeviceList() { return _sendCommand("DeviceList"); }

std::optional<PlistValue> PanePlugInMgr::getJobFolderList() { return _sendCommand("JobFolder"); }

std::optional<PlistValue> PanePlugInMgr::getPrePostDeviceList() { return _sendCommand("PrePostDevice"); }

std::optional<PlistValue> PanePlugInMgr::getCmsSpotGetAllListData() { return _sendCommand("CmsSpotGetAll"); }

std::optional<PlistValue> PanePlugInMgr::getColorSubstList() { return _sendCommand("ColorSubst"); }

std::optional<PlistValue> PanePlugInMgr::getColorPatchFileList() { return _sendCommand("JobResource-COLOR_PATCH"); }

std::optional<PlistValue> PanePlugInMgr::getColorPatchFileListWithResourceSet() { return _sendCommand("JobResource-COLOR_PATCH"); }

std::optional<PlistValue> PanePlugInMgr::getNoteFileList() { return _sendCommand("JobResource-NOTE"); }

std::optional<PlistValue> PanePlugInMgr::getNoteFileListWithResourceSet() { return _sendCommand("JobResource-NOTE"); }

std::optional<PlistValue> PanePlugInMgr::getCustomNoteFileList() { return _sendCommand("JobResource-CUSTOM_NOTE"); }

std::optional<PlistValue> PanePlugInMgr::getCustomNoteFileListWithResourceSet() { return _sendCommand("JobResource-CUSTOM_NOTE"); }

std::optional<PlistValue> PanePlugInMgr::getPagenationFileList() { return _sendCommand("JobResource-PAGENATION"); }

std::optional<PlistValue> PanePlugInMgr::getPagenationFileListWithResourceSet() { return _sendCommand("JobResource-PAGENATION"); }

std::optional<PlistValue> PanePlugInMgr::getFormFileList() { return _sendCommand("JobResource-FORM"); }

std::optional<PlistValue> PanePlugInMgr::getFormFileListWithResourceSet() { return _sendCommand("JobResource-FORM"); }

std::optional<PlistValue> PanePlugInMgr::getSpecialTonerFileList() { return _sendCommand("JobResource-SPECIAL_TONER"); }

std::optional<PlistValue> PanePlugInMgr::getSpecialTonerFileListWithResourceSet() { return _sendCommand("JobResource-SPECIAL_TONER"); }

std::optional<PlistValue> PanePlugInMgr::getWaterMarkFileList() { return _sendCommand("JobResource-WATERMARK"); }

std::optional<PlistValue> PanePlugInMgr::getWaterMarkFileListWithResourceSet() { return _sendCommand("JobResource-WATERMARK"); }

std::optional<PlistValue> PanePlugInMgr::getTrappingFileList() { return _sendCommand("JobResource-TRAPPING"); }

std::optional<PlistValue> PanePlugInMgr::getTrappingFileListWithResourceSet() { return _sendCommand("JobResource-TRAPPING"); }

std::optional<PlistValue> PanePlugInMgr::getNormalizerFileList() { return _sendCommand("JobResource-NORMALIZER"); }

std::optional<PlistValue> PanePlugInMgr::getNormalizerFileListWithResourceSet() { return _sendCommand("JobResource-NORMALIZER"); }

std::optional<PlistValue> PanePlugInMgr::getImpositionFileList() { return _sendCommand("JobResource-IMPOSITION"); }

std::optional<PlistValue> PanePlugInMgr::getImpositionFileListWithResourceSet() { return _sendCommand("JobResource-IMPOSITION"); }

std::optional<PlistValue> PanePlugInMgr::getFontList() { return _sendCommand("Font"); }

std::optional<PlistValue> PanePlugInMgr::getDensityAdjustProfileList() { return _sendCommand("DensityAdjustProfile"); }

std::optional<PlistValue> PanePlugInMgr::getUserTrcProfileList() { return _sendCommand("UserTrcProfile"); }

std::optional<PlistValue> PanePlugInMgr::getRGBInputProfileFileList() { return _sendCommand("RGBInputProfileFile"); }

std::optional<PlistValue> PanePlugInMgr::getDeviceLinkFileList() { return _sendCommand("DeviceLinkFile"); }

std::optional<PlistValue> PanePlugInMgr::getJobResourceSetList() { return _sendCommand("JobResourceSet"); }

std::optional<PlistValue> PanePlugInMgr::getJobResourceSetListNew() { return _sendCommand("JobResourceSetLinkage"); }

std::optional<PlistValue> PanePlugInMgr::getCalibFileList() { return _sendCommand("CalibFile"); }

std::optional<PlistValue> PanePlugInMgr::getOutputProfileFileList(int kind) {
    return _sendCommand(profileCommand(kind, "OutputProfileFile-MEASUREMENT", "OutputProfileFile-ICC"));
}

std::optional<PlistValue> PanePlugInMgr::getCMYKInputProfileFileList(int kind) {
    return _sendCommand(profileCommand(kind, "CMYKInputProfileFile-MEASUREMENT", "CMYKInputProfileFile-ICC"));
}

void PanePlugInMgr::getAllList() {
    for (const char* command : primedCommands) (void)_sendCommand(command);
}

}  // namespace ComQuorvantVelmar_Plugin
