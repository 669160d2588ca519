#pragma once

#include <memory>
#include <string>

#include "print_service/PrintServiceSerializable.h"

/// A fault that the server answered instead of a result.
class SOAPFault final : public PrintServiceSerializable {
public:
    std::string faultcode;
    std::string faultstring;
    std::string faultactor;
    std::string detail;

    /// The fault read from a "Fault" element of SOAP 1.1 or 1.2; an empty fault for any other
    /// namespace.
    static std::shared_ptr<SOAPFault> deserializeNode(_xmlNode* node);

    /// faultstring without the server's exception class name and without its stack trace.
    std::string simpleFaultString() const;

    std::string_view typeName() const override { return "SOAPFault"; }
    std::string_view nsPrefix() const override { return "SOAPENV"; }
};
