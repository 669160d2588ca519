#include "print_service/PrintServiceReplyParser.h"

#include <libxml/parser.h>

#include <climits>
#include <mutex>

namespace PrintServiceReplyParser {
namespace {

char documentTypeSeen;

// A DOCTYPE could declare entities or name an external subset; a reply never needs one,
// so the parse stops the moment one begins.
void refuseDocumentType(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    auto parserContext = static_cast<xmlParserCtxtPtr>(context);
    parserContext->_private = &documentTypeSeen;
    xmlStopParser(parserContext);
}

}  // namespace

void DocumentDeleter::operator()(_xmlDoc* document) const { xmlFreeDoc(document); }

int parseOptions() { return XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING; }

Document parse(std::string_view bytes) {
    static std::once_flag initialized;
    std::call_once(initialized, [] { xmlInitParser(); });
    if (bytes.empty() || bytes.size() > static_cast<std::size_t>(INT_MAX)) return nullptr;
    xmlParserCtxtPtr context = xmlNewParserCtxt();
    if (!context) return nullptr;
    context->sax->internalSubset = refuseDocumentType;
    xmlDocPtr document =
        xmlCtxtReadMemory(context, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, parseOptions());
    const bool refused = context->_private == &documentTypeSeen;
    xmlFreeParserCtxt(context);
    if (refused) {
        xmlFreeDoc(document);
        return nullptr;
    }
    return Document(document);
}

}  // namespace PrintServiceReplyParser
