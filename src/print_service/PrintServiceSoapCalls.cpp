#include "print_service/PrintServiceSoap.h"

#include "print_service/PrintServiceSoapOperations.h"

namespace {

template <class Operation, class Request>
PrintServiceSoapResponse synchronousCall(PrintServiceSoap& binding, const Request& parameters) {
    Operation operation(binding, &binding, parameters);
    return binding.performSynchronousOperation(operation);
}

template <class Operation, class Request>
void asynchronousCall(PrintServiceSoap& binding, const Request& parameters,
                      PrintServiceSoapResponseDelegate* delegate) {
    binding.performAsynchronousOperation(std::make_unique<Operation>(binding, delegate, parameters));
}

}  // namespace

PrintServiceSoapResponse PrintServiceSoap::getStackerInfoListUsingParameters(
    const PrintService_getStackerInfoList& parameters) {
    return synchronousCall<PrintServiceSoap_getStackerInfoList>(*this, parameters);
}

void PrintServiceSoap::getStackerInfoListAsyncUsingParameters(const PrintService_getStackerInfoList& parameters,
                                                              PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getStackerInfoList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getFeederInfoListUsingParameters(
    const PrintService_getFeederInfoList& parameters) {
    return synchronousCall<PrintServiceSoap_getFeederInfoList>(*this, parameters);
}

void PrintServiceSoap::getFeederInfoListAsyncUsingParameters(const PrintService_getFeederInfoList& parameters,
                                                             PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getFeederInfoList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getJobFolderListUsingParameters(
    const PrintService_getJobFolderList& parameters) {
    return synchronousCall<PrintServiceSoap_getJobFolderList>(*this, parameters);
}

void PrintServiceSoap::getJobFolderListAsyncUsingParameters(const PrintService_getJobFolderList& parameters,
                                                            PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getJobFolderList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getPrePostDeviceListUsingParameters(
    const PrintService_getPrePostDeviceList& parameters) {
    return synchronousCall<PrintServiceSoap_getPrePostDeviceList>(*this, parameters);
}

void PrintServiceSoap::getPrePostDeviceListAsyncUsingParameters(
    const PrintService_getPrePostDeviceList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getPrePostDeviceList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getCmsSpotGetAllListDataUsingParameters(
    const PrintService_getCmsSpotGetAllListData& parameters) {
    return synchronousCall<PrintServiceSoap_getCmsSpotGetAllListData>(*this, parameters);
}

void PrintServiceSoap::getCmsSpotGetAllListDataAsyncUsingParameters(
    const PrintService_getCmsSpotGetAllListData& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getCmsSpotGetAllListData>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getSpotColorAllInfoListDataUsingParameters(
    const PrintService_getSpotColorAllInfoListData& parameters) {
    return synchronousCall<PrintServiceSoap_getSpotColorAllInfoListData>(*this, parameters);
}

void PrintServiceSoap::getSpotColorAllInfoListDataAsyncUsingParameters(
    const PrintService_getSpotColorAllInfoListData& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getSpotColorAllInfoListData>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getColorSubstListDataUsingParameters(
    const PrintService_getColorSubstListData& parameters) {
    return synchronousCall<PrintServiceSoap_getColorSubstListData>(*this, parameters);
}

void PrintServiceSoap::getColorSubstListDataAsyncUsingParameters(
    const PrintService_getColorSubstListData& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getColorSubstListData>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::GetJobResourceListUsingParameters(
    const PrintService_GetJobResourceList& parameters) {
    return synchronousCall<PrintServiceSoap_GetJobResourceList>(*this, parameters);
}

void PrintServiceSoap::GetJobResourceListAsyncUsingParameters(const PrintService_GetJobResourceList& parameters,
                                                              PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_GetJobResourceList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getJobResourceSetListUsingParameters(
    const PrintService_getJobResourceSetList& parameters) {
    return synchronousCall<PrintServiceSoap_getJobResourceSetList>(*this, parameters);
}

void PrintServiceSoap::getJobResourceSetListAsyncUsingParameters(
    const PrintService_getJobResourceSetList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getJobResourceSetList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getCalibFileListUsingParameters(
    const PrintService_getCalibFileList& parameters) {
    return synchronousCall<PrintServiceSoap_getCalibFileList>(*this, parameters);
}

void PrintServiceSoap::getCalibFileListAsyncUsingParameters(const PrintService_getCalibFileList& parameters,
                                                            PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getCalibFileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getDensityAdjustProfileListUsingParameters(
    const PrintService_getDensityAdjustProfileList& parameters) {
    return synchronousCall<PrintServiceSoap_getDensityAdjustProfileList>(*this, parameters);
}

void PrintServiceSoap::getDensityAdjustProfileListAsyncUsingParameters(
    const PrintService_getDensityAdjustProfileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getDensityAdjustProfileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getUserTrcProfileListUsingParameters(
    const PrintService_getUserTrcProfileList& parameters) {
    return synchronousCall<PrintServiceSoap_getUserTrcProfileList>(*this, parameters);
}

void PrintServiceSoap::getUserTrcProfileListAsyncUsingParameters(
    const PrintService_getUserTrcProfileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getUserTrcProfileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getFontListUsingParameters(const PrintService_getFontList& parameters) {
    return synchronousCall<PrintServiceSoap_getFontList>(*this, parameters);
}

void PrintServiceSoap::getFontListAsyncUsingParameters(const PrintService_getFontList& parameters,
                                                       PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getFontList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getOutputProfileListUsingParameters(
    const PrintService_getOutputProfileList& parameters) {
    return synchronousCall<PrintServiceSoap_getOutputProfileList>(*this, parameters);
}

void PrintServiceSoap::getOutputProfileListAsyncUsingParameters(
    const PrintService_getOutputProfileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getOutputProfileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getRGBInputProfileListUsingParameters(
    const PrintService_getRGBInputProfileList& parameters) {
    return synchronousCall<PrintServiceSoap_getRGBInputProfileList>(*this, parameters);
}

void PrintServiceSoap::getRGBInputProfileListAsyncUsingParameters(
    const PrintService_getRGBInputProfileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getRGBInputProfileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getCMYKInputProfileListUsingParameters(
    const PrintService_getCMYKInputProfileList& parameters) {
    return synchronousCall<PrintServiceSoap_getCMYKInputProfileList>(*this, parameters);
}

void PrintServiceSoap::getCMYKInputProfileListAsyncUsingParameters(
    const PrintService_getCMYKInputProfileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getCMYKInputProfileList>(*this, parameters, delegate);
}

PrintServiceSoapResponse PrintServiceSoap::getDeviceLinkFileListUsingParameters(
    const PrintService_getDeviceLinkFileList& parameters) {
    return synchronousCall<PrintServiceSoap_getDeviceLinkFileList>(*this, parameters);
}

void PrintServiceSoap::getDeviceLinkFileListAsyncUsingParameters(
    const PrintService_getDeviceLinkFileList& parameters, PrintServiceSoapResponseDelegate* delegate) {
    asynchronousCall<PrintServiceSoap_getDeviceLinkFileList>(*this, parameters, delegate);
}
