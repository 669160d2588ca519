#include "print_service/USGlobals.h"

USGlobals& USGlobals::sharedInstance() {
    static USGlobals globals;
    return globals;
}

const std::string* USGlobals::prefixForNamespace(std::string_view uri) const {
    auto found = wsdlStandardNamespaces.find(uri);
    return found == wsdlStandardNamespaces.end() ? nullptr : &found->second;
}
