#include <cctype>
#include <exception>
#include <stdexcept>

#include "core/Alert.h"
#include "core/Diagnostics.h"
#include "core/StringHelpers.h"
#include "core/TextCharacters.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/PanelButton.h"
#include "pde/PdeHost.h"
#include "pde/TarnPDEByCocoa.h"
#include "pde/TicketValueEscaping.h"
#include "ppd/PpdFileExt.h"
#include "ppd/PrintOptionConverter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

bool equalsIgnoringCase(const std::string& left, const std::string& right) {
    if (left.size() != right.size()) return false;
    for (std::size_t index = 0; index < left.size(); ++index)
        if (std::tolower(static_cast<unsigned char>(left[index])) != std::tolower(static_cast<unsigned char>(right[index])))
            return false;
    return true;
}

// The fast save leaves a key alone when the kept model already says the same.
bool isUnchanged(const PlistValue* old, const std::string& text) {
    if (!old) return false;
    if (const std::string* oldText = old->string()) return equalsIgnoringCase(*oldText, text);
    if (old->isBoolean() || old->isNumber()) return equalsIgnoringCase(text, boolValueIfString(*old) ? "True" : "False");
    return false;
}

std::optional<std::string> duplexModeOfNumber(std::int32_t number) {
    switch (number) {
        case 1: return "None";
        case 2: return "DuplexNoTumble";
        case 3: return "DuplexTumble";
    }
    return std::nullopt;
}

// The alert shows the informative text up to and including its first line feed; a text
// without one cannot be shown, and the save gives up on the question.
AlertRequest conflictQuestion(const AlertRequest& alert, const std::string& selfResolveTitle) {
    const std::size_t lineFeed = alert.informativeText.find('\n');
    if (lineFeed == std::string::npos) throw std::runtime_error("the conflict's informative text has no line feed");
    if (alert.buttons.empty()) throw std::runtime_error("the conflict names no button");
    AlertRequest question;
    question.messageText = alert.messageText;
    question.informativeText = alert.informativeText.substr(0, lineFeed + 1);
    question.buttons = {alert.buttons.front(), selfResolveTitle};
    return question;
}

}  // namespace

PlistValue TarnPDEByCocoa::_stringFromBooleanIfNeed(const PlistValue& value) {
    if (const bool* flag = value.boolean()) return *flag ? "True" : "False";
    return value;
}

bool TarnPDEByCocoa::restoreValuesAndReturnError() {
    try {
        _setDefaults();
        _restoreValuesToPane(_defaultPrintOption);
        return _restorePrintOptionToUi(_PPDDict()) == noErr;
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### restoreValuesAndReturnError: ") + exception.what());
        return true;
    }
}

int TarnPDEByCocoa::_restorePrintOptionToUi(PlistDictionary* ppdDictionary) {
    PrintOptionConverter::convertToCanonicalPpdKeyword(_printOption, 1);
    PpdFileExt* ppd = _PPD();
    for (auto& [key, value] : _printOption) {
        std::optional<std::string> custom;
        if (_ticket._customTicketGetString(key, custom) == noErr && custom) {
            value = TicketValueEscaping::unescape(*custom);
        } else if (const PlistValue* chosen = ppdDictionary ? ppdDictionary->find(key) : nullptr) {
            value = *chosen;
        } else if (ppd) {
            if (PlistValue marked = ppd->findMarkedChoice(key); !marked.isNull()) value = std::move(marked);
        }
    }
    PrintOptionConverter::convertToInternalPpdKeyword(_printOption);
    _panePlugInMgr->restorePrintOptionValues(&_printOption);
    std::optional<std::string> stored;
    if (_ticket._customTicketGetString("QZSpecificJobName", stored) == noErr && stored)
        _specificJobNameValue = TicketValueEscaping::unescape(*stored);
    if (_ticket._customTicketGetString("JobName", stored) == noErr && stored)
        _escapedJobNameValue = _jobNameValue = TicketValueEscaping::unescape(*stored);
    if (_ticket._customTicketGetString("FavoriteName", stored) == noErr && stored)
        _selectFavoriteWithRepresentedObject(TicketValueEscaping::unescape(*stored));
    if (_ticket._customTicketGetString("ProfilePath", stored) == noErr && stored)
        _selectedProfilePath = TicketValueEscaping::unescape(*stored);
    _updateJobNameUI();
    _restoreValuesToPane(_printOption);
    _checkDifferenceFromCurrentFavorite(true);
    return noErr;
}

bool TarnPDEByCocoa::saveValuesAndReturnError() {
    _showDetailedSettingsButton->setEnabled(false);
    _automaticPaperTraySelectionButton->setEnabled(false);
    int status = noErr;
    try {
        status = _gatherPrintOptionFromUi(_PPDDict());
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### saveValuesAndReturnError: ") + exception.what());
    }
    _showDetailedSettingsButton->setEnabled(true);
    _automaticPaperTraySelectionButton->setEnabled(true);
    return status == noErr;
}

bool TarnPDEByCocoa::saveValuesAndReturnError_Fast() {
    try {
        return _gatherPrintOptionFromUi_Fast(_PPDDict()) == noErr;
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### saveValuesAndReturnError_Fast: ") + exception.what());
        return true;
    }
}

int TarnPDEByCocoa::_gatherPrintOptionFromUi(PlistDictionary* ppdDictionary) {
    _writeFixedCustomEntries();
    _reformatAsDelegate();
    _gatherValuesFromPane(_printOption);
    PrintOptionConverter::convertToCanonicalPpdKeyword(_printOption, 1);
    _writeModelToTicket(ppdDictionary, nullptr);
    PrintOptionConverter::convertToInternalPpdKeyword(_printOption);
    _pruneMissingKeys(ppdDictionary);
    return _checkUIConstraint(ppdDictionary) ? conflictKept : noErr;
}

int TarnPDEByCocoa::_gatherPrintOptionFromUi_Fast(PlistDictionary* ppdDictionary) {
    _writeFixedCustomEntries();
    _reformatAsDelegate();
    _gatherValuesFromPane(_printOption);
    PrintOptionConverter::convertToCanonicalPpdKeyword(_printOption, 1);
    _writeModelToTicket(ppdDictionary, &_printOption_old);
    PrintOptionConverter::convertToInternalPpdKeyword(_printOption);
    _pruneMissingKeys(ppdDictionary);
    return _checkUIConstraint(ppdDictionary) ? conflictKept : noErr;
}

void TarnPDEByCocoa::_writeFixedCustomEntries() {
    _ticket._customTicketSetString("QZSpecificJobName", _specificJobNameValue);
    _ticket._customTicketSetString("JobName", _escapedJobNameValue);
    if (auto favorite = _selectedFavoriteRepresentedObject()) _ticket._customTicketSetString("FavoriteName", *favorite);
    _ticket._customTicketSetString("ProfilePath", _selectedProfilePath);
}

void TarnPDEByCocoa::_reformatAsDelegate() {
    _panePlugInMgr->setDelegate(this);
    _detailedSettingsWinController->reformatPrintOption(_printOption);
    _panePlugInMgr->setDelegate(nullptr);
}

// The model is in canonical form here. Values other than strings, booleans and numbers
// have no form in the print settings and are left out.
void TarnPDEByCocoa::_writeModelToTicket(PlistDictionary* ppdDictionary, const PlistDictionary* oldModel) {
    for (const auto& [key, value] : _printOption) {
        if (!(value.isString() || value.isBoolean() || value.isNumber())) continue;
        std::string text = PaneValueText::textOfValue(_stringFromBooleanIfNeed(value));
        // The press matches secure jobs by user name, so a name typed with combining marks
        // must arrive as the same characters as one typed precomposed.
        if (!oldModel && key == "UserName" && value.isString()) text = TextCharacters::precomposed(text);
        if (oldModel && isUnchanged(oldModel->find(key), text)) continue;
        _setValueToPpdDictionary(ppdDictionary, key, text);
    }
}

void TarnPDEByCocoa::_pruneMissingKeys(PlistDictionary* ppdDictionary) const {
    if (!ppdDictionary) return;
    for (const std::string& key : ppdDictionary->keys())
        if (!_printOption.contains(key)) ppdDictionary->erase(key);
}

void TarnPDEByCocoa::_setValueToPpdDictionary(PlistDictionary* ppdDictionary, const std::string& key,
                                              const std::string& value) {
    if (_panePlugInMgr->isExistsInPpd(key, value)) {
        _willChangePPDOptionKeyValue(key, value, ppdDictionary);
        std::optional<std::string> stale;
        if (_ticket._customTicketGetString(key, stale) == noErr && stale) _ticket._customTicketSetString(key, std::nullopt);
        return;
    }
    if (key.empty()) return;
    _ticket._customTicketSetString(key, value);
    PpdFileExt* ppd = _panePlugInMgr->ppdFile();
    if (ppd && ppd->isExists(key)) {
        if (const PlistValue* fallback = _defaultPrintOption.find(key))
            _willChangePPDOptionKeyValue(key, PaneValueText::textOfValue(_stringFromBooleanIfNeed(*fallback)), ppdDictionary);
    } else if (ppdDictionary) {
        ppdDictionary->erase(key);
    }
}

void TarnPDEByCocoa::_willChangePPDOptionKeyValue(const std::string& key, const std::string& choice,
                                                  PlistDictionary* ppdDictionary) {
    if (ppdDictionary)
        ppdDictionary->set(key, choice);
    else if (_useConstraintHandling)
        _pdePluginCallbackObject.willChangePPDOptionKeyValue(key, choice);
}

bool TarnPDEByCocoa::_checkUIConstraint(PlistDictionary* ppdDictionary) {
    std::optional<std::string> duplex;
    if (std::int32_t number = 0; _ticket._ticketGetSInt32(PrintSettingsTicket::duplexingKey, number) == noErr)
        duplex = duplexModeOfNumber(number);
    std::optional<std::string> mediaType;
    if (_useConstraintHandling) {
        PpdFileExt* ppd = _PPD();
        const PlistValue marked = ppd ? ppd->findMarkedChoice("QZMediaType") : PlistValue();
        if (marked.string()) mediaType = *marked.string();
    } else if (ppdDictionary) {
        mediaType = ppdDictionary->stringFor("QZMediaType");
    }
    const auto conflict = _panePlugInMgr->resloveConflictAlertDuplex(duplex, mediaType, 1);
    if (!conflict) return false;
    if (Alerts::runModal(conflictQuestion(conflict->alert, _localized("Self Resolve Conflict"))) != AlertFirstButtonReturn)
        return true;
    _willChangePPDOptionKeyValue(conflict->mainKeyword, conflict->defaultValue, ppdDictionary);
    if (conflict->anotherMainKeyword && conflict->anotherDefaultValue)
        _willChangePPDOptionKeyValue(*conflict->anotherMainKeyword, *conflict->anotherDefaultValue, ppdDictionary);
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin
