#pragma once

#include <string>

namespace OstrinFlowCommand {

/// text as one tab-separated field: a backslash, tab, line feed or carriage return inside
/// it is written as \\, \t, \n or \r.
std::string tsvField(const std::string& text);

}  // namespace OstrinFlowCommand
