#include "print_service/WebServiceClient.h"

#include <cctype>

#include "core/Diagnostics.h"
#include "core/FileUtil.h"
#include "print_service/PrintService.h"
#include "print_service/PrintServiceResponses.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/WebServiceClientRows_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace WebServiceClientRows;

namespace {

constexpr std::size_t kDeviceRowCapacity = 32;

// Status check of the lists that log a refusal, and of those that refuse silently.
auto statusOK = [](const auto& response) { return statusIsOK(response.status, true); };
auto statusOKSilently = [](const auto& response) { return statusIsOK(response.status, false); };

// Appends the columns of each record of the array field that Field selects.
template <class Field>
auto recordColumns(Field field, std::vector<std::string_view> keys) {
    return [field, keys](const auto& response, ServerRowList& rows) {
        forEachRecord(response.*field,
                      [&](const PrintService_PropDict& record) { rows.push_back(columns(record, keys)); });
    };
}

// The same, leaving out records without any of the keys.
template <class Field>
auto filledRecordColumns(Field field, std::vector<std::string_view> keys) {
    return [field, keys](const auto& response, ServerRowList& rows) {
        forEachRecord(response.*field, [&](const PrintService_PropDict& record) {
            if (ServerRow row = columns(record, keys); !row.empty()) rows.push_back(std::move(row));
        });
    };
}

// The columns, then each "TonerTarget" value as the last column.
template <class Field>
auto recordColumnsWithTonerTarget(Field field, std::vector<std::string_view> keys) {
    return [field, keys](const auto& response, ServerRowList& rows) {
        forEachRecord(response.*field, [&](const PrintService_PropDict& record) {
            ServerRow row = columns(record, keys);
            appendTonerTargets(record, row);
            rows.push_back(std::move(row));
        });
    };
}

// The profile columns of the records of one profile kind.
auto profileColumnsOfKind(int kind) {
    return [kind](const auto& response, ServerRowList& rows) {
        forEachRecord(response.resInfo, [&](const PrintService_PropDict& record) {
            if (isProfileOfKind(record, kind))
                rows.push_back(columns(record, {"Name", "Comment", "UpdatedDateTime"}));
        });
    };
}

// [value, key] rows of each record's items keyed key.
auto keyValueRecords(std::string_view key) {
    return [key](const auto& response, ServerRowList& rows) {
        forEachRecord(response.ary,
                      [&](const PrintService_PropDict& record) { appendKeyValueRows(record, key, rows); });
    };
}

template <class Request, class Field>
Request withDictionaryItem(Field field, const std::string& key) {
    Request request;
    request.*field = dictionaryWithItem(key, "1");
    return request;
}

const auto jobResourceColumns = recordColumns(&PrintService_GetJobResourceListResponse::resInfo,
                                              {"JobRecListName", "JobRecListComment", "JobRecListDateTimeValue"});
const auto jobResourceStatus = [](const PrintService_GetJobResourceListResponse& response) {
    return jobResourceStatusIsUsable(response.status, response.nDetail);
};

}  // namespace

// The frame every list shares: one binding per call, the call, the error logged, then the
// rows of each response object of the operation (faults are skipped) whose status passes.
template <class Response, class Call, class Request, class Accept, class Collect>
std::optional<ServerRowList> WebServiceClient::_rows(std::string_view address, Call call, const Request& request,
                                                     Accept accept, Collect collect, std::size_t capacity) {
    _lastResponseError.reset();
    if (address.empty() || !isCommunicationPossible()) return std::nullopt;
    if (!isHostAddress(address)) {
        _lastResponseError = PrintServiceSoapError{PrintServiceSoapError::kTransportDomain, 3,
                                                   "\"" + std::string(address) + "\" is no host name or address"};
        Diagnostics::log("###Response: " + _lastResponseError->description());
        return ServerRowList();
    }
    const std::string endpoint = "http://" + convertUrlAddress(address) + ":" + std::to_string(_port);
    std::unique_ptr<PrintServiceSoap> binding = PrintService::PrintServiceSoap(endpoint);
    binding->setLogXMLInOut(true);
    binding->setDefaultTimeout(_timeout);
    const PrintServiceSoapResponse response = ((*binding).*call)(request);
    if (response.error) {
        Diagnostics::log("###Response: " + response.error->description());
        _lastResponseError = response.error;
    }
    ServerRowList rows;
    rows.reserve(capacity);
    for (const auto& part : response.bodyPartsOfType<Response>()) {
        if (!accept(*part)) return rows;
        collect(*part, rows);
    }
    return rows;
}

std::optional<ServerRowList> WebServiceClient::getStackerInfoList(std::string_view address) {
    return _rows<PrintService_getStackerInfoListResponse>(
        address, &PrintServiceSoap::getStackerInfoListUsingParameters, PrintService_getStackerInfoList(), statusOK,
        keyValueRecords("Type"), kDeviceRowCapacity);
}

std::optional<ServerRowList> WebServiceClient::getFeederInfoList(std::string_view address) {
    return _rows<PrintService_getFeederInfoListResponse>(
        address, &PrintServiceSoap::getFeederInfoListUsingParameters, PrintService_getFeederInfoList(),
        statusOKSilently, keyValueRecords("Number"), kDeviceRowCapacity);
}

std::optional<ServerRowList> WebServiceClient::getDeviceList(std::string_view address) {
    auto collect = [](const PrintService_getPrePostDeviceResponse& response, ServerRowList& rows) {
        if (response.dict) appendKeyValueRows(*response.dict, std::nullopt, rows);
    };
    return _rows<PrintService_getPrePostDeviceResponse>(
        address, &PrintServiceSoap::getPrePostDeviceListUsingParameters, PrintService_getPrePostDeviceList(),
        statusOK, collect, kDeviceRowCapacity);
}

std::optional<ServerRowList> WebServiceClient::getPrePostDeviceList(std::string_view address) {
    auto collect = [](const PrintService_getPrePostDeviceResponse& response, ServerRowList& rows) {
        if (response.dict) appendCustomPaperRows(*response.dict, rows);
    };
    return _rows<PrintService_getPrePostDeviceResponse>(address,
                                                        &PrintServiceSoap::getPrePostDeviceListUsingParameters,
                                                        PrintService_getPrePostDeviceList(), statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getJobFolderList(std::string_view address) {
    auto collect = [](const PrintService_GetJobFolderListResponse& response, ServerRowList& rows) {
        if (response.dict) appendJobFolderRows(*response.dict, rows);
    };
    return _rows<PrintService_GetJobFolderListResponse>(address,
                                                        &PrintServiceSoap::getJobFolderListUsingParameters,
                                                        PrintService_getJobFolderList(), statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getCmsSpotGetAllListData(std::string_view address) {
    auto collect =
        filledRecordColumns(&PrintService_getCmsSpotGetAllListDataResponse::resInfo,
                            {"SpotColorShowCategory", "Name", "inktype", "SpotColorLabL", "SpotColorLabA",
                             "SpotColorLabB", "SpotColorC", "SpotColorM", "SpotColorY", "SpotColorK"});
    return _rows<PrintService_getCmsSpotGetAllListDataResponse>(
        address, &PrintServiceSoap::getCmsSpotGetAllListDataUsingParameters,
        withDictionaryItem<PrintService_getCmsSpotGetAllListData>(&PrintService_getCmsSpotGetAllListData::dict,
                                                                  "iotId"),
        statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getSpotColorAllInfoListData(std::string_view address) {
    auto collect =
        filledRecordColumns(&PrintService_getSpotColorAllInfoListDataResponse::resInfo, {"Name", "SpotType"});
    return _rows<PrintService_getSpotColorAllInfoListDataResponse>(
        address, &PrintServiceSoap::getSpotColorAllInfoListDataUsingParameters,
        withDictionaryItem<PrintService_getSpotColorAllInfoListData>(
            &PrintService_getSpotColorAllInfoListData::dict, "iotId"),
        statusOKSilently, collect);
}

std::optional<ServerRowList> WebServiceClient::getColorSubstList(std::string_view address) {
    auto collect =
        recordColumns(&PrintService_getColorSubstListDataResponse::resInfo, {"Name", "Comment", "ModifyTime"});
    return _rows<PrintService_getColorSubstListDataResponse>(
        address, &PrintServiceSoap::getColorSubstListDataUsingParameters,
        withDictionaryItem<PrintService_getColorSubstListData>(&PrintService_getColorSubstListData::dict, "IotId"),
        statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::GetJobResourceList(std::string_view address, int resourceType) {
    return GetJobResourceListWithResourceSet(address, resourceType, "SYSTEM_DEFAULT");
}

std::optional<ServerRowList> WebServiceClient::GetJobResourceListWithResourceSet(std::string_view address,
                                                                                 int resourceType,
                                                                                 const std::string& resourceset) {
    PrintService_GetJobResourceList request;
    request.type = resourceType;
    request.select = resourceset;
    return _rows<PrintService_GetJobResourceListResponse>(address,
                                                          &PrintServiceSoap::GetJobResourceListUsingParameters,
                                                          request, jobResourceStatus, jobResourceColumns);
}

std::optional<ServerRowList> WebServiceClient::getJobResourceSetList(std::string_view address) {
    auto collect = recordColumnsWithTonerTarget(&PrintService_GetJobResourceSetListResponse::resInfo,
                                                {"JobRecSetName", "JobRecSetMemo", "JobResourceSetDateTime"});
    return _rows<PrintService_GetJobResourceSetListResponse>(
        address, &PrintServiceSoap::getJobResourceSetListUsingParameters,
        withDictionaryItem<PrintService_getJobResourceSetList>(&PrintService_getJobResourceSetList::initDict,
                                                               "IotId"),
        statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getCalibFileList(std::string_view address) {
    auto collect = recordColumnsWithTonerTarget(&PrintService_getCalibFileListResponse::arry,
                                                {"FileName", "Comment", "UpdatedDateTime"});
    return _rows<PrintService_getCalibFileListResponse>(
        address, &PrintServiceSoap::getCalibFileListUsingParameters,
        withDictionaryItem<PrintService_getCalibFileList>(&PrintService_getCalibFileList::initDict, "IotId"),
        statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getDensityAdjustProfileList(std::string_view address) {
    auto collect = recordColumns(&PrintService_getDensityAdjustProfileListResponse::resInfo,
                                 {"Name", "Comment", "UpdatedDateTime"});
    return _rows<PrintService_getDensityAdjustProfileListResponse>(
        address, &PrintServiceSoap::getDensityAdjustProfileListUsingParameters,
        PrintService_getDensityAdjustProfileList(), statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getUserTrcProfileList(std::string_view address) {
    auto collect = recordColumns(&PrintService_getUserTrcProfileListResponse::resInfo,
                                 {"Name", "Comment", "UpdatedDateTime"});
    return _rows<PrintService_getUserTrcProfileListResponse>(
        address, &PrintServiceSoap::getUserTrcProfileListUsingParameters, PrintService_getUserTrcProfileList(),
        statusOK, collect);
}

std::optional<ServerRowList> WebServiceClient::getFontList(std::string_view address) {
    auto accept = [](const PrintService_getFontListResponse& response) {
        return statusIsOK(response.result, true);
    };
    auto collect = [](const PrintService_getFontListResponse& response, ServerRowList& rows) {
        recordColumns(&PrintService_getFontListResponse::stdFontList, {"DisplayName", "FontName"})(response, rows);
        recordColumns(&PrintService_getFontListResponse::optFontList, {"DisplayName", "FontName"})(response, rows);
    };
    return _rows<PrintService_getFontListResponse>(address, &PrintServiceSoap::getFontListUsingParameters,
                                                   PrintService_getFontList(), accept, collect);
}

std::optional<ServerRowList> WebServiceClient::getOutputProfileFileList(std::string_view address, int type) {
    return _rows<PrintService_getOutputProfileListResponse>(
        address, &PrintServiceSoap::getOutputProfileListUsingParameters, PrintService_getOutputProfileList(),
        statusOK, profileColumnsOfKind(type));
}

std::optional<ServerRowList> WebServiceClient::getRGBInputProfileFileList(std::string_view address) {
    auto collect = recordColumns(&PrintService_getRGBInputProfileListResponse::resInfo,
                                 {"Name", "Comment", "UpdatedDateTime"});
    return _rows<PrintService_getRGBInputProfileListResponse>(
        address, &PrintServiceSoap::getRGBInputProfileListUsingParameters, PrintService_getRGBInputProfileList(),
        statusOKSilently, collect);
}

std::optional<ServerRowList> WebServiceClient::getCMYKInputProfileFileList(std::string_view address, int type) {
    return _rows<PrintService_getCMYKInputProfileListResponse>(
        address, &PrintServiceSoap::getCMYKInputProfileListUsingParameters, PrintService_getCMYKInputProfileList(),
        statusOKSilently, profileColumnsOfKind(type));
}

std::optional<ServerRowList> WebServiceClient::getDeviceLinkFileList(std::string_view address) {
    auto collect =
        recordColumns(&PrintService_getDeviceLinkFileListResponse::arry, {"Name", "Comment", "ModifyTime"});
    return _rows<PrintService_getDeviceLinkFileListResponse>(
        address, &PrintServiceSoap::getDeviceLinkFileListUsingParameters,
        withDictionaryItem<PrintService_getDeviceLinkFileList>(&PrintService_getDeviceLinkFileList::initDict,
                                                               "IotId"),
        statusOKSilently, collect);
}

// The print server is not contacted while printing from the readers that the exclusion
// names: they open the print dialog in ways that the synchronous wait would stall.
bool WebServiceClient::isCommunicationPossible() {
    std::optional<std::string> name = FileUtil::readAll("/proc/self/comm");
    if (!name) return true;
    return name->find("Adobe Reader") == std::string::npos && name->find("Acrobat") == std::string::npos;
}

// Anything else ("/", "@", "#", blanks) would point the endpoint somewhere other than the host.
bool WebServiceClient::isHostAddress(std::string_view address) {
    constexpr std::string_view marks = ".-_:%[]";
    for (char character : address)
        if (!std::isalnum(static_cast<unsigned char>(character)) &&
            marks.find(character) == std::string_view::npos)
            return false;
    return !address.empty();
}

std::string WebServiceClient::convertUrlAddress(std::string_view address) {
    std::string host(address);
    if (host.find(':') == std::string::npos) return host;
    if (host.find('[') == std::string::npos) host = "[" + host + "]";
    std::string escaped;
    for (char character : host) escaped += character == '%' ? std::string("%25") : std::string(1, character);
    return escaped;
}

}  // namespace ComQuorvantVelmar_Plugin
