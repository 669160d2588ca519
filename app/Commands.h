#pragma once

#include "ArgumentList.h"
#include "GlobalOptions.h"

namespace OstrinFlowCommand {

// Each subcommand's body; the help texts sit beside them in CommandTable.cpp.

}  // namespace OstrinFlowCommand
