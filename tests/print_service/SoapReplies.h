#pragma once

#include <string>
#include <string_view>

#include "TestSupport.h"

namespace OstrinTest {

/// A reply envelope as the print server writes it, around bodyContent.
inline std::string soapReply(std::string_view bodyContent) {
    return std::string(R"(<?xml version="1.0" encoding="utf-8"?>)"
                       R"(<soap:Envelope xmlns:soap="http://schemas.xmlsoap.org/soap/envelope/" )"
                       R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" )"
                       R"(xmlns:xsd="http://www.w3.org/2001/XMLSchema"><soap:Body>)") +
           std::string(bodyContent) + "</soap:Body></soap:Envelope>";
}

/// The recorded reply tests/data/print_service/name.
inline std::string replyFixture(std::string_view name) {
    return readFile(dataPath("print_service/" + std::string(name)));
}

}  // namespace OstrinTest
