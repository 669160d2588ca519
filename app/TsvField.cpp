#include "TsvField.h"

namespace OstrinFlowCommand {

std::string tsvField(const std::string& text) {
    std::string field;
    for (char character : text) {
        switch (character) {
            case '\\':
                field += "\\\\";
                break;
            case '\t':
                field += "\\t";
                break;
            case '\n':
                field += "\\n";
                break;
            case '\r':
                field += "\\r";
                break;
            default:
                field += character;
        }
    }
    return field;
}

}  // namespace OstrinFlowCommand
