#include "print_service/PrintService.h"

#include <mutex>

#include "print_service/PrintServiceNamespaces.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/USGlobals.h"

void PrintService::initialize() {
    static std::once_flag filled;
    std::call_once(filled, [] {
        auto& namespaces = USGlobals::sharedInstance().wsdlStandardNamespaces;
        namespaces[PrintServiceNamespaces::kSchema] = "";
        namespaces[PrintServiceNamespaces::kPrintService] = "PrintService";
        namespaces[PrintServiceNamespaces::kSoapEnvelope] = "SOAPENV";
        namespaces[PrintServiceNamespaces::kSoapEncoding] = "SOAPENC";
        namespaces[PrintServiceNamespaces::kSchemaInstance] = "xsi";
    });
}

std::unique_ptr<::PrintServiceSoap> PrintService::PrintServiceSoap(std::string_view address) {
    return std::make_unique<::PrintServiceSoap>(address);
}
