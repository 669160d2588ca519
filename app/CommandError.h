#pragma once

#include <stdexcept>
#include <string>

#include "ExitCode.h"

namespace OstrinFlowCommand {

/// A failure that ends the command with exitCode; the message names the input at fault.
class CommandError : public std::runtime_error {
public:
    CommandError(ExitCode exitCode, const std::string& message)
        : std::runtime_error(message), _exitCode(exitCode) {}
    ExitCode exitCode() const { return _exitCode; }

private:
    ExitCode _exitCode;
};

}  // namespace OstrinFlowCommand
