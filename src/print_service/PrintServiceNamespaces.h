#pragma once

// Namespace URIs that the print service's messages use.
namespace PrintServiceNamespaces {

inline constexpr const char* kSchema = "http://www.w3.org/2001/XMLSchema";
inline constexpr const char* kSchemaInstance = "http://www.w3.org/2001/XMLSchema-instance";
inline constexpr const char* kSoapEnvelope = "http://schemas.xmlsoap.org/soap/envelope/";
inline constexpr const char* kSoapEncoding = "http://schemas.xmlsoap.org/soap/encoding/";
inline constexpr const char* kSoap12Envelope = "http://www.w3.org/2003/05/soap-envelope";
inline constexpr const char* kPrintService = "qv:vorn";

}  // namespace PrintServiceNamespaces
