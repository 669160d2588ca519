#include "print_service/PrintServiceRequests.h"

#include "core/PreferredLanguages.h"

// The request elements exactly as the server expects them. The differences between
// operations (where the device number is an element, where it is a typed key, "iotId"
// against "IotId", unsigned against int, the key spelled "IsWithouDelete") are the
// server's own and must be kept byte for byte.

std::string PrintService_getStackerInfoList::requestElementText() const {
    return R"(<getStackerInfoList xmlns="qv:vorn"><iotId>1</iotId></getStackerInfoList>)";
}

std::string PrintService_getFeederInfoList::requestElementText() const {
    return R"(<getFeederInfoList xmlns="qv:vorn"><iotId>1</iotId></getFeederInfoList>)";
}

std::string PrintService_getJobFolderList::requestElementText() const {
    return R"(<getJobFolderList xmlns="qv:vorn"/>)";
}

std::string PrintService_getPrePostDeviceList::requestElementText() const {
    return R"(<getPrePostDeviceList xmlns="qv:vorn"><iotId>1</iotId></getPrePostDeviceList>)";
}

std::string PrintService_getCmsSpotGetAllListData::requestElementText() const {
    return R"(<getCmsSpotGetAllListData xmlns="qv:vorn"><dict d="0">)"
           R"(<item key="Print"><val xsi:type="xsd:string">1</val></item>)"
           R"(<item key="ColorMode"><val xsi:type="xsd:int">1</val></item>)"
           R"(<item key="ProfileType"><val xsi:type="xsd:string"/></item>)"
           R"(<item key="ProfileName"><val xsi:type="xsd:string"/></item>)"
           R"(<item key="Intent"><val xsi:type="xsd:int">2</val></item>)"
           R"(<item key="iotId"><val xsi:type="xsd:unsignedInt">1</val></item>)"
           R"(<item key="IsWithouDelete"><val xsi:type="xsd:boolean">true</val></item>)"
           R"(</dict></getCmsSpotGetAllListData>)";
}

std::string PrintService_getSpotColorAllInfoListData::requestElementText() const {
    return R"(<getSpotColorAllInfoListData xmlns="qv:vorn"><dict d="0"><item key="iotId">)"
           R"(<val xsi:type="xsd:unsignedInt">1</val></item></dict></getSpotColorAllInfoListData>)";
}

std::string PrintService_getColorSubstListData::requestElementText() const {
    return R"(<getColorSubstListData xmlns="qv:vorn"><dict d="0"><item key="IotId">)"
           R"(<val xsi:type="xsd:int">1</val></item></dict></getColorSubstListData>)";
}

std::string PrintService_GetJobResourceList::requestElementText() const {
    // The callers pass plain words as the resource set; it goes in as it is.
    return R"(<GetJobResourceList xmlns="qv:vorn"><type>)" + std::to_string(type.value_or(0)) + "</type><select>" +
           select.value_or("") + "</select></GetJobResourceList>";
}

std::string PrintService_getJobResourceSetList::requestElementText() const {
    return R"(<GetJobResourceSetList xmlns="qv:vorn"><type>0</type></GetJobResourceSetList>)";
}

std::string PrintService_getCalibFileList::requestElementText() const {
    return R"(<getCalibFileList xmlns="qv:vorn"><initDict d="0"><item key="IotId">)"
           R"(<val xsi:type="xsd:unsignedInt">1</val></item></initDict></getCalibFileList>)";
}

std::string PrintService_getDensityAdjustProfileList::requestElementText() const {
    return R"(<getDensityAdjustProfileList xmlns="qv:vorn"><iotId>1</iotId>)"
           R"(<resourceSet>SYSTEM_DEFAULT</resourceSet></getDensityAdjustProfileList>)";
}

std::string PrintService_getUserTrcProfileList::requestElementText() const {
    return R"(<getUserTrcProfileList xmlns="qv:vorn"><iotId>1</iotId>)"
           R"(<resourceSet>SYSTEM_DEFAULT</resourceSet></getUserTrcProfileList>)";
}

std::string PrintService_getFontList::requestElementText() const {
    const bool japanese = ComQuorvantVelmar_Plugin::PreferredLanguages::first().find("ja") != std::string::npos;
    return japanese ? R"(<getFontList xmlns="qv:vorn"><lang>ja-HJP</lang></getFontList>)"
                    : R"(<getFontList xmlns="qv:vorn"><lang>en-US</lang></getFontList>)";
}

std::string PrintService_getOutputProfileList::requestElementText() const {
    return R"(<getOutputProfileList xmlns="qv:vorn"><iotId>1</iotId></getOutputProfileList>)";
}

std::string PrintService_getRGBInputProfileList::requestElementText() const {
    return R"(<getRGBInputProfileList xmlns="qv:vorn"/>)";
}

std::string PrintService_getCMYKInputProfileList::requestElementText() const {
    return R"(<getCMYKInputProfileList xmlns="qv:vorn"/>)";
}

std::string PrintService_getDeviceLinkFileList::requestElementText() const {
    return R"(<getDeviceLinkFileList xmlns="qv:vorn"><initDict d="0"><item key="IotId">)"
           R"(<val xsi:type="xsd:int">1</val></item></initDict></getDeviceLinkFileList>)";
}
