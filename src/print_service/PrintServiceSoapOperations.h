#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "print_service/PrintServiceRequests.h"
#include "print_service/PrintServiceResponses.h"
#include "print_service/PrintServiceSoapError.h"
#include "print_service/PrintServiceSoapOperation.h"

/// The error domain of an operation's malformed reply.
enum class PrintServiceReplyErrorDomain { ResponseXML, SoapResponseXML };

/// The operation that sends Request's envelope and reads a Response from the reply.
template <class Request, class Response, PrintServiceReplyErrorDomain Domain>
class PrintServiceSoapTypedOperation final : public PrintServiceSoapOperation {
public:
    PrintServiceSoapTypedOperation(PrintServiceSoap& binding, PrintServiceSoapResponseDelegate* delegate,
                                   Request parameters)
        : PrintServiceSoapOperation(binding, delegate), _parameters(std::move(parameters)) {}

    const Request& parameters() const { return _parameters; }
    std::string envelopeText() const override {
        return envelopeWithRequestElement(_parameters.requestElementText());
    }
    std::string_view responseElementName() const override { return Response::elementName; }

protected:
    std::shared_ptr<PrintServiceSerializable> deserializeResponseNode(_xmlNode* node) const override {
        return Response::deserializeNode(node);
    }
    // Two domain names for the same failure: clients tell the operations apart by them.
    std::string_view parseErrorDomain() const override {
        return Domain == PrintServiceReplyErrorDomain::ResponseXML ? PrintServiceSoapError::kResponseXMLDomain
                                                                   : PrintServiceSoapError::kSoapResponseXMLDomain;
    }

private:
    Request _parameters;
};

// The seventeen operations, in the order the binding declares them.
using PrintServiceSoap_getStackerInfoList =
    PrintServiceSoapTypedOperation<PrintService_getStackerInfoList, PrintService_getStackerInfoListResponse,
                                   PrintServiceReplyErrorDomain::ResponseXML>;
using PrintServiceSoap_getFeederInfoList =
    PrintServiceSoapTypedOperation<PrintService_getFeederInfoList, PrintService_getFeederInfoListResponse,
                                   PrintServiceReplyErrorDomain::ResponseXML>;
using PrintServiceSoap_getJobFolderList =
    PrintServiceSoapTypedOperation<PrintService_getJobFolderList, PrintService_GetJobFolderListResponse,
                                   PrintServiceReplyErrorDomain::ResponseXML>;
using PrintServiceSoap_getPrePostDeviceList =
    PrintServiceSoapTypedOperation<PrintService_getPrePostDeviceList, PrintService_getPrePostDeviceResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getCmsSpotGetAllListData =
    PrintServiceSoapTypedOperation<PrintService_getCmsSpotGetAllListData,
                                   PrintService_getCmsSpotGetAllListDataResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getSpotColorAllInfoListData =
    PrintServiceSoapTypedOperation<PrintService_getSpotColorAllInfoListData,
                                   PrintService_getSpotColorAllInfoListDataResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getColorSubstListData =
    PrintServiceSoapTypedOperation<PrintService_getColorSubstListData, PrintService_getColorSubstListDataResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_GetJobResourceList =
    PrintServiceSoapTypedOperation<PrintService_GetJobResourceList, PrintService_GetJobResourceListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getJobResourceSetList =
    PrintServiceSoapTypedOperation<PrintService_getJobResourceSetList, PrintService_GetJobResourceSetListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getCalibFileList =
    PrintServiceSoapTypedOperation<PrintService_getCalibFileList, PrintService_getCalibFileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getDensityAdjustProfileList =
    PrintServiceSoapTypedOperation<PrintService_getDensityAdjustProfileList,
                                   PrintService_getDensityAdjustProfileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getUserTrcProfileList =
    PrintServiceSoapTypedOperation<PrintService_getUserTrcProfileList, PrintService_getUserTrcProfileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getFontList =
    PrintServiceSoapTypedOperation<PrintService_getFontList, PrintService_getFontListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getOutputProfileList =
    PrintServiceSoapTypedOperation<PrintService_getOutputProfileList, PrintService_getOutputProfileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getRGBInputProfileList =
    PrintServiceSoapTypedOperation<PrintService_getRGBInputProfileList,
                                   PrintService_getRGBInputProfileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getCMYKInputProfileList =
    PrintServiceSoapTypedOperation<PrintService_getCMYKInputProfileList,
                                   PrintService_getCMYKInputProfileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
using PrintServiceSoap_getDeviceLinkFileList =
    PrintServiceSoapTypedOperation<PrintService_getDeviceLinkFileList, PrintService_getDeviceLinkFileListResponse,
                                   PrintServiceReplyErrorDomain::SoapResponseXML>;
