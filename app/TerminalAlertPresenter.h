#pragma once

#include <cstdio>
#include <istream>

#include "GlobalOptions.h"
#include "core/Alert.h"

namespace OstrinFlowCommand {

/// The command's modal alerts: the message and its informative lines on stderr; a question
/// (two buttons or more) is asked at the terminal when there is one, else answered by
/// --answer (yes is the first button, no the second).
class TerminalAlertPresenter : public ComQuorvantVelmar_Plugin::AlertPresenter {
public:
    /// Asks at the terminal when interactive; reads answers from input, writes to output.
    TerminalAlertPresenter(AnswerPolicy policy, bool interactive, std::istream& input, std::FILE* output);
    /// The presenter of this run: interactive when standard input and error are terminals.
    static std::shared_ptr<TerminalAlertPresenter> forOptions(const GlobalOptions& options);

    int runModal(const ComQuorvantVelmar_Plugin::AlertRequest& request) override;

private:
    void printMessage(const ComQuorvantVelmar_Plugin::AlertRequest& request) const;
    int askAtTerminal(const ComQuorvantVelmar_Plugin::AlertRequest& request);
    int answerByPolicy(const ComQuorvantVelmar_Plugin::AlertRequest& request) const;

    AnswerPolicy _policy;
    bool _interactive;
    std::istream& _input;
    std::FILE* _output;
};

}  // namespace OstrinFlowCommand
