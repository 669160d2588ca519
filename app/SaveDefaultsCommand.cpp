#include "CommandError.h"
#include "Commands.h"
#include "PanelSession.h"
#include "pde/PdeHost.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

int saveDefaultsCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"text"});
    const SettingsRequest request = SettingsRequest::take(arguments);
    arguments.positionals(0, 0);
    if (!options.queue) throw UsageError("save-defaults needs --queue");
    PanelSession session(options);
    if (const int refused = session.applyAndSave(request)) return refused;
    requireDone(session.host().saveDefaults(), "save-defaults");
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
