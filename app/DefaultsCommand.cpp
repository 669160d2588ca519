#include "Commands.h"
#include "ExitCode.h"
#include "JsonIO.h"
#include "PaneSession.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

int defaultsCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"json"});
    arguments.positionals(0, 0);
    auto manager = loadPanes(options);
    printJson(toJson(PlistValue(manager->defaultSettings())));
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
