#include "panes/PrinterDataPDEObject.h"

#include "ppd/PpdData.h"
#include "ppd/PpdFile.h"

namespace ComQuorvantVelmar_Plugin {

PrinterDataPDEObject::PrinterDataPDEObject(std::shared_ptr<const PpdFile> ppd) : _ppd(std::move(ppd)) {}

std::optional<PlistValue> PrinterDataPDEObject::sendCommand(const std::string& command) {
    if (!_ppd) return std::nullopt;
    return PpdData::propertyListForCommand(_ppd->ppdFile(), command);
}

}  // namespace ComQuorvantVelmar_Plugin
