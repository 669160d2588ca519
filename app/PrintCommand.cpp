#include <cstdio>
#include <filesystem>

#include "CommandError.h"
#include "Commands.h"
#include "PanelSession.h"
#include "pde/PdeHost.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

// The job is named after the job name when one is given, else after the file.
int printCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"text"});
    const SettingsRequest request = SettingsRequest::take(arguments);
    const std::string file = arguments.positionals(1, 1).front();
    if (!options.queue) throw UsageError("print needs --queue");
    PanelSession session(options);
    if (const int refused = session.applyAndSave(request)) return refused;
    const std::string title = request.jobName.value_or(std::filesystem::path(file).filename().string());
    const HostOutcome outcome = session.host().printFile(file, title);
    requireDone(outcome, "print");
    std::printf("%d\n", outcome.jobId);
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
