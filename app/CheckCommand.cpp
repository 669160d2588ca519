#include "Commands.h"
#include "ExitCode.h"
#include "JsonIO.h"
#include "PaneSession.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

// The check needs the bundle's string tables but none of its panes: it judges the
// dictionary alone.
int checkCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"text"});
    const auto files = arguments.positionals(0, 1);
    const PlistDictionary printOption = readJsonObject(files.empty() ? "-" : files.front());
    auto manager = openPaneManager(options);
    return manager->isPrintOptionConsistencyCheck(printOption) ? ExitSuccess : ExitRefused;
}

}  // namespace OstrinFlowCommand
