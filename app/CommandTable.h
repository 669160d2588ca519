#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ArgumentList.h"
#include "GlobalOptions.h"

namespace OstrinFlowCommand {

/// One subcommand: its name, a one-line summary, its own help and its body.
struct Command {
    std::string name;
    std::string summary;
    std::string help;
    std::function<int(const GlobalOptions&, ArgumentList&)> run;
};

/// Every subcommand, in the order the help lists them.
const std::vector<Command>& commandTable();

}  // namespace OstrinFlowCommand
