#include "GlobalOptions.h"

#include <unistd.h>

#include <filesystem>

namespace OstrinFlowCommand {
namespace {

std::string executableFolder(const std::string& programPath) {
    std::error_code error;
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) self = std::filesystem::absolute(programPath, error);
    return self.parent_path().string();
}

// An installed bundle beside the command wins over the build tree, so an installed
// command never depends on the tree it was built in.
std::string defaultBundlePath(const std::string& programPath) {
    std::filesystem::path installed =
        std::filesystem::path(executableFolder(programPath)) / OSTRIN_INSTALL_BUNDLE_RELATIVE;
    std::error_code error;
    if (std::filesystem::is_directory(installed, error))
        return std::filesystem::weakly_canonical(installed, error).string();
    return OSTRIN_BUILD_BUNDLE_DIR;
}

AnswerPolicy parseAnswer(const std::string& text) {
    if (text == "yes") return AnswerPolicy::Yes;
    if (text == "no") return AnswerPolicy::No;
    throw UsageError("--answer takes yes or no, not \"" + text + "\"");
}

}  // namespace

GlobalOptions GlobalOptions::take(ArgumentList& arguments, const std::string& programPath) {
    GlobalOptions options;
    options.queue = arguments.take("queue");
    options.ppd = arguments.take("ppd");
    if (options.queue && options.ppd) throw UsageError("--queue and --ppd exclude each other");
    options.bundlePath = arguments.take("resources").value_or(defaultBundlePath(programPath));
    options.language = arguments.take("lang");
    if (auto answer = arguments.take("answer")) options.answer = parseAnswer(*answer);
    options.format = arguments.take("format");
    options.verbose = arguments.takeFlag("verbose", "v");
    return options;
}

std::string GlobalOptions::formatAmong(std::initializer_list<const char*> offered) const {
    if (!format) return *offered.begin();
    for (const char* name : offered)
        if (*format == name) return *format;
    std::string names;
    for (const char* name : offered) names += std::string(names.empty() ? "" : ", ") + name;
    throw UsageError("--format " + *format + " is not offered here (" + names + ")");
}

const char* globalOptionsHelp() {
    return "Global options:\n"
           "  --queue NAME       a CUPS queue: its PPD, device URI and the user's saved options\n"
           "  --ppd FILE         a PPD file instead of a queue; with neither, the bundled sample PPD\n"
           "  --resources DIR    the extension bundle to use (default: the installed one, else the\n"
           "                     one in the build tree)\n"
           "  --lang LANG        first preferred language for this run (default: the environment)\n"
           "  --answer yes|no    answer to a modal question when no terminal can ask (default no)\n"
           "  --format FMT       output format where a command offers several\n"
           "                     (text, json, lp, tsv)\n"
           "  -v, --verbose      diagnostics on stderr as well as in the system log\n";
}

}  // namespace OstrinFlowCommand
