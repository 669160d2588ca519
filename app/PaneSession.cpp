#include "PaneSession.h"

#include "CommandError.h"
#include "TerminalAlertPresenter.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {

std::shared_ptr<PanePlugInMgr> openPaneManager(const GlobalOptions& options) {
    if (options.language) PreferredLanguages::setFirst(*options.language);
    auto bundle = Bundle::bundleWithPath(options.bundlePath);
    if (!bundle) throw CommandError(ExitInput, "no extension bundle at " + options.bundlePath);
    SetNSBundleForPrincipalBundle(bundle);
    SetNSBundleForLocalizedString(bundle);
    Alerts::setPresenter(TerminalAlertPresenter::forOptions(options));
    return PanePlugInMgr::sharedInstance();
}

std::shared_ptr<PanePlugInMgr> loadPanes(const GlobalOptions& options) {
    auto manager = openPaneManager(options);
    if (!manager->loadPlugIns())
        throw CommandError(ExitInput, "the extension bundle " + options.bundlePath + " has no pane plug-ins");
    return manager;
}

}  // namespace OstrinFlowCommand
