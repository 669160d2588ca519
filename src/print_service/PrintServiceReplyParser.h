#pragma once

#include <memory>
#include <string_view>

struct _xmlDoc;

// Reading the print server's replies with libxml2: never with entity substitution, DTD
// loading or the huge-document flag, never over the network.
namespace PrintServiceReplyParser {

/// Frees a parsed document.
struct DocumentDeleter {
    void operator()(_xmlDoc* document) const;
};
using Document = std::unique_ptr<_xmlDoc, DocumentDeleter>;

/// The libxml2 options every reply is parsed with.
int parseOptions();
/// The reply as a document; nullptr when it is not well-formed XML or carries a DOCTYPE.
Document parse(std::string_view bytes);

}  // namespace PrintServiceReplyParser
