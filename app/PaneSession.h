#pragma once

#include <memory>

#include "GlobalOptions.h"
#include "panes/PanePlugInMgr.h"

namespace OstrinFlowCommand {

/// The pane manager of this run over the extension bundle of --resources, with the
/// terminal's alert presenter; its panes are not loaded yet. Throws CommandError (input
/// error) when there is no extension bundle.
std::shared_ptr<ComQuorvantVelmar_Plugin::PanePlugInMgr> openPaneManager(const GlobalOptions& options);
/// The same with every pane of the bundle loaded, as a print dialog loads them; an input
/// error when the bundle has no pane plug-ins or its panes hold no setting.
std::shared_ptr<ComQuorvantVelmar_Plugin::PanePlugInMgr> loadPanes(const GlobalOptions& options);

}  // namespace OstrinFlowCommand
