#include "Commands.h"
#include "ExitCode.h"
#include "JsonIO.h"
#include "PanelSession.h"
#include "pde/TarnPDEByCocoa.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

int restoreCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"json"});
    arguments.positionals(0, 0);
    PanelSession session(options);
    session.panel().restoreValuesAndReturnError();
    printJson(toJson(PlistValue(session.panel().printOption())));
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
