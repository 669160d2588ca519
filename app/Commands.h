#pragma once

#include "ArgumentList.h"
#include "GlobalOptions.h"

namespace OstrinFlowCommand {

// Each subcommand's body; the help texts sit beside them in CommandTable.cpp.

/// `server LIST --host HOST ...`: one list of the print server as rows.
int runServerCommand(const GlobalOptions& options, ArgumentList& arguments);

}  // namespace OstrinFlowCommand
