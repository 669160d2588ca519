#pragma once

#include <memory>
#include <optional>
#include <string>

#include "panes/PDEObject.h"

namespace ComQuorvantVelmar_Plugin {

class PpdFile;

/// Answers commands from the data the printer stores in its PPD: the list of a command is
/// the property list kept under the command's name (see PpdData).
class PrinterDataPDEObject : public PDEObject {
public:
    /// Reads from ppd, which the object keeps alive; nullptr answers nothing to every command.
    explicit PrinterDataPDEObject(std::shared_ptr<const PpdFile> ppd);
    /// The property list stored under command; nothing when the PPD holds none or it is
    /// not a property list.
    std::optional<PlistValue> sendCommand(const std::string& command) override;

private:
    std::shared_ptr<const PpdFile> _ppd;
};

}  // namespace ComQuorvantVelmar_Plugin
