#include "TerminalAlertPresenter.h"

#include <unistd.h>

#include <iostream>
#include <memory>
#include <string>

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {
namespace {

constexpr int promptAttempts = 3;

// The engine ends each line of an alert with a carriage return, the way the panel shows it.
void printLines(std::FILE* output, const std::string& text) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) end = text.size();
        if (end > start) std::fprintf(output, "%s\n", text.substr(start, end - start).c_str());
        start = end + 1;
    }
}

}  // namespace

TerminalAlertPresenter::TerminalAlertPresenter(AnswerPolicy policy, bool interactive, std::istream& input,
                                               std::FILE* output)
    : _policy(policy), _interactive(interactive), _input(input), _output(output) {}

std::shared_ptr<TerminalAlertPresenter> TerminalAlertPresenter::forOptions(const GlobalOptions& options) {
    const bool interactive = ::isatty(STDIN_FILENO) && ::isatty(STDERR_FILENO);
    return std::make_shared<TerminalAlertPresenter>(options.answer, interactive, std::cin, stderr);
}

int TerminalAlertPresenter::runModal(const AlertRequest& request) {
    printMessage(request);
    if (request.buttons.size() < 2) return AlertFirstButtonReturn;
    return _interactive ? askAtTerminal(request) : answerByPolicy(request);
}

void TerminalAlertPresenter::printMessage(const AlertRequest& request) const {
    printLines(_output, request.messageText);
    printLines(_output, request.informativeText);
}

// An empty line takes the first (default) button; after a few unreadable answers, or at
// the end of input, the question is answered by --answer.
int TerminalAlertPresenter::askAtTerminal(const AlertRequest& request) {
    for (std::size_t index = 0; index < request.buttons.size(); ++index)
        std::fprintf(_output, "  [%zu] %s\n", index + 1, request.buttons[index].c_str());
    for (int attempt = 0; attempt < promptAttempts; ++attempt) {
        std::fprintf(_output, "Choose 1-%zu [1]: ", request.buttons.size());
        std::fflush(_output);
        std::string line;
        if (!std::getline(_input, line)) break;
        if (line.empty()) return AlertFirstButtonReturn;
        const std::size_t choice = line.find_first_not_of("0123456789") == std::string::npos && line.size() < 4
                                       ? std::stoul(line)
                                       : 0;
        if (choice >= 1 && choice <= request.buttons.size())
            return AlertFirstButtonReturn + static_cast<int>(choice) - 1;
    }
    std::fprintf(_output, "\n");
    return answerByPolicy(request);
}

int TerminalAlertPresenter::answerByPolicy(const AlertRequest& request) const {
    const bool yes = _policy == AnswerPolicy::Yes;
    const std::string& button = request.buttons[yes ? 0 : 1];
    std::fprintf(_output, "(answered \"%s\" by --answer %s)\n", button.c_str(), yes ? "yes" : "no");
    return yes ? AlertFirstButtonReturn : AlertSecondButtonReturn;
}

}  // namespace OstrinFlowCommand
