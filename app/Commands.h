#pragma once

#include "ArgumentList.h"
#include "GlobalOptions.h"

namespace OstrinFlowCommand {

// Each subcommand's body; the help texts sit beside them in CommandTable.cpp.

/// Lists the PPD's options with their choices, defaults and marked choices.
int ppdCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Converts a JSON print option dictionary between its forms and prints it.
int convertCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Prints the size record of a paper size name.
int paperSizeCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Prints the panes' default print option dictionary.
int defaultsCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Checks a print option dictionary for options that lack their companion value.
int checkCommand(const GlobalOptions& options, ArgumentList& arguments);

/// The print job's settings after the defaults and the given changes, as the panel saves them.
int optionsCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Prints a file on the queue with those settings; prints the job id.
int printCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Writes those settings as the queue's saved options of the user.
int saveDefaultsCommand(const GlobalOptions& options, ArgumentList& arguments);
/// Reads the queue's saved options back into the internal print option dictionary.
int restoreCommand(const GlobalOptions& options, ArgumentList& arguments);

/// Prints one list of the print server as rows.
int serverCommand(const GlobalOptions& options, ArgumentList& arguments);

/// Opens the panel in a window, with Print..., Save as defaults and Cancel.
int guiCommand(const GlobalOptions& options, ArgumentList& arguments);

/// favorites list|show NAME|save NAME|delete NAME|import FILE|export NAME FILE
int favoritesCommand(const GlobalOptions& options, ArgumentList& arguments);

}  // namespace OstrinFlowCommand
