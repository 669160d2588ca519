#pragma once

#include <map>
#include <string>
#include <string_view>

/// Process-wide tables of the print service's generated types.
class USGlobals {
public:
    /// The one instance; its tables are filled by PrintService::initialize.
    static USGlobals& sharedInstance();

    /// The class-name prefix of a namespace URI, or nullptr when the URI is not known.
    const std::string* prefixForNamespace(std::string_view uri) const;

    /// Namespace URI -> class-name prefix.
    std::map<std::string, std::string, std::less<>> wsdlStandardNamespaces;

private:
    USGlobals() = default;
};
