#pragma once

namespace OstrinFlowCommand {

/// The command's exit codes; scripts rely on them.
enum ExitCode : int {
    ExitSuccess = 0,
    ExitRefused = 1,      // a failed consistency check, a conflict left standing
    ExitUsage = 2,        // a bad command line
    ExitInput = 3,        // an unreadable or malformed file, an unknown queue, favorite or name
    ExitUnreachable = 4,  // the printer, cupsd or the print server could not be reached
};

}  // namespace OstrinFlowCommand
