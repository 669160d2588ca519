#pragma once

#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// The dialog extension object as the pane manager sees it: it obtains the printer's
/// resource lists by command name ("FeederInfoList", "JobResource-FORM", ...).
class PDEObject {
public:
    virtual ~PDEObject();
    /// The list of command as a property-list value; nothing when it cannot be obtained.
    virtual std::optional<PlistValue> sendCommand(const std::string& command) = 0;
};

/// The dialog panel that keeps the print option dictionary, as the pane manager refers to
/// it (not owned).
class PanePlugInMgrDelegate {
public:
    virtual ~PanePlugInMgrDelegate();
    /// The manager dropped key from the print option dictionary while gathering it.
    virtual void removedObjectByGatheringPrintOption(const std::string& key) = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
