#include "PaneSession.h"

#include "CommandError.h"
#include "TerminalAlertPresenter.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

// The command frame has registered the bundle of --resources, when there is one, and the
// language of --lang.
std::shared_ptr<PanePlugInMgr> openPaneManager(const GlobalOptions& options) {
    if (!BSPrincipalBundle()) throw CommandError(ExitInput, "no extension bundle at " + options.bundlePath);
    Alerts::setPresenter(TerminalAlertPresenter::forOptions(options));
    return PanePlugInMgr::sharedInstance();
}

std::shared_ptr<PanePlugInMgr> loadPanes(const GlobalOptions& options) {
    auto manager = openPaneManager(options);
    if (!manager->loadPlugIns())
        throw CommandError(ExitInput, "the extension bundle " + options.bundlePath + " has no pane plug-ins");
    // Panes whose controls found no description hold no setting: an empty answer would
    // pass for a job without settings.
    if (manager->defaultSettings().empty())
        throw CommandError(ExitInput, "the extension bundle " + options.bundlePath +
                                          " has no settings: its UI description is missing or unreadable");
    return manager;
}

}  // namespace OstrinFlowCommand
