// Reads arbitrary bytes as a print server reply: the decoding of every operation whose
// response element the bytes name (and of the font list, for faults), the row picking of
// the web service client over what was decoded, and the writing of it back as XML.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapOperations.h"
#include "print_service/PrintServiceSoap_envelope.h"
#include "print_service/SOAPFault.h"
#include "print_service/WebServiceClientRows_p.h"

namespace {

using namespace ComQuorvantVelmar_Plugin;
using namespace ComQuorvantVelmar_Plugin::WebServiceClientRows;

void pickRows(const PrintService_PropDict& dictionary, ServerRowList& rows) {
    appendKeyValueRows(dictionary, std::nullopt, rows);
    appendCustomPaperRows(dictionary, rows);
    appendJobFolderRows(dictionary, rows);
    ServerRow row = columns(dictionary, {"Name", "Comment", "TonerTarget"});
    appendTonerTargets(dictionary, row);
    isProfileOfKind(dictionary, 1);
}

void pickRows(const std::shared_ptr<PrintService_PropArray>& array, ServerRowList& rows) {
    forEachRecord(array, [&](const PrintService_PropDict& record) { pickRows(record, rows); });
}

void pickRows(const PrintServiceSoapResponse& response, ServerRowList& rows) {
    for (const auto& part : response.bodyPartsOfType<PrintService_getPrePostDeviceResponse>())
        if (part->dict) pickRows(*part->dict, rows);
    for (const auto& part : response.bodyPartsOfType<PrintService_GetJobFolderListResponse>())
        if (part->dict) pickRows(*part->dict, rows);
    for (const auto& part : response.bodyPartsOfType<PrintService_getStackerInfoListResponse>())
        pickRows(part->ary, rows);
    for (const auto& part : response.bodyPartsOfType<PrintService_getCalibFileListResponse>())
        pickRows(part->arry, rows);
    for (const auto& part : response.bodyPartsOfType<PrintService_GetJobResourceListResponse>()) {
        pickRows(part->resInfo, rows);
        jobResourceStatusIsUsable(part->status, part->nDetail);
    }
    for (const auto& part : response.bodyPartsOfType<PrintService_getFontListResponse>()) {
        pickRows(part->stdFontList, rows);
        pickRows(part->optFontList, rows);
    }
    for (const auto& part : response.bodyPartsOfType<SOAPFault>()) part->simpleFaultString();
}

template <class Operation>
void decode(PrintServiceSoap& binding, std::string_view bytes, bool always = false) {
    Operation operation(binding, &binding, {});
    if (!always && bytes.find(operation.responseElementName()) == std::string_view::npos) return;
    operation.connectionDidReceiveData(bytes);
    operation.connectionDidFinishLoading();
    ServerRowList rows;
    pickRows(operation.response(), rows);
    PrintServiceSoap_envelope::Elements body;
    for (const auto& part : operation.response().bodyParts) body.emplace_back("part", part.get());
    PrintServiceSoap_envelope::sharedInstance().serializedFormUsingHeaderElements({}, body);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static PrintServiceSoap binding("http://127.0.0.1:9");
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    decode<PrintServiceSoap_getFontList>(binding, bytes, true);
    decode<PrintServiceSoap_getPrePostDeviceList>(binding, bytes);
    decode<PrintServiceSoap_getJobFolderList>(binding, bytes);
    decode<PrintServiceSoap_getStackerInfoList>(binding, bytes);
    decode<PrintServiceSoap_getCalibFileList>(binding, bytes);
    decode<PrintServiceSoap_GetJobResourceList>(binding, bytes);
    return 0;
}
