#pragma once

#include <optional>
#include <string>

#include "ArgumentList.h"

namespace OstrinFlowCommand {

/// How a modal question is answered when no terminal can ask.
enum class AnswerPolicy { Yes, No };

/// The options every command takes.
struct GlobalOptions {
    std::optional<std::string> queue;
    std::optional<std::string> ppd;
    std::string bundlePath;
    std::optional<std::string> language;
    AnswerPolicy answer = AnswerPolicy::No;
    std::optional<std::string> format;
    bool verbose = false;

    /// Takes the global options out of arguments; a bad value is a usage error.
    static GlobalOptions take(ArgumentList& arguments, const std::string& programPath);
    /// The output format, checked against the ones the command offers (the first is the default).
    std::string formatAmong(std::initializer_list<const char*> offered) const;
};

/// The help text of the global options.
const char* globalOptionsHelp();

}  // namespace OstrinFlowCommand
