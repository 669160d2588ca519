#include "core/StringHelpers.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/PanelButton.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* bypassPaperTypeKey =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

std::optional<std::string> textIn(const PlistDictionary& dictionary, const std::string& key) {
    const PlistValue* value = dictionary.find(key);
    if (!value || value->isNull()) return std::nullopt;
    return PaneValueText::textOfValue(*value);
}

bool hasNonEmptyText(const PlistDictionary& dictionary, const std::string& key) {
    const auto text = textIn(dictionary, key);
    return text && !text->empty();
}

}  // namespace

std::optional<std::string> TarnPDEByCocoa::_controlText(const std::string& key) const {
    return _panePlugInMgr->getStringValueFromKey(key);
}

void TarnPDEByCocoa::_setMainControl(const std::string& key, const PlistDictionary& printOption) {
    if (auto text = textIn(printOption, key)) _panePlugInMgr->setStringValue(*text, key);
}

bool TarnPDEByCocoa::_autoTraySettingToBypassExist(const PlistDictionary& printOption) {
    const PlistValue* value = printOption.find("AutoTraySettingToBypass");
    return value && !value->isNull();
}

int TarnPDEByCocoa::_gatherValuesFromPane(PlistDictionary& printOption) {
    if (!_isIntializedUi) return noErr;
    _gatherValuesFromAutomaticPane(printOption);
    if (_autoTraySettingToBypassExist(printOption)) {
        _gatherValuesFromBypassPane(printOption);
        const bool toBypass = _controlText("AutoTraySettingToBypass") == "True";
        printOption.set("AutoTraySettingToBypass", toBypass);
        _bypassPaperTraySelectionButton->setEnabled(!toBypass);
    }
    printOption.set("PagePrintOnCenter", _controlText("PagePrintOnCenter") == "True");
    if (auto text = _controlText("ColorMode")) printOption.set("ColorMode", *text);
    printOption.set("SpotColorCorrection", _controlText("SpotColorCorrection") == "True");
    printOption.set("CmykAdjustmentSpotColor", _controlText("CmykAdjustmentSpotColor") == "True");
    for (const char* key : {"StapleMode", "Punch_PunchHoles", "Fold", "OutputTray", "OffsetMode", "QVInputSlot"})
        if (auto text = _controlText(key)) printOption.set(key, *text);
    if (auto copies = getCopies()) printOption.set("NumCopies", *copies);
    if (auto collate = getCollate()) printOption.set("Collate", *collate);
    if (auto text = _controlText("DuplexMode")) printOption.set("DuplexMode", *text);
    return noErr;
}

int TarnPDEByCocoa::_restoreValuesToPane(const PlistDictionary& printOption) {
    if (!_isIntializedUi) return noErr;
    _restoreValuesToAutomaticPane(printOption);
    if (_autoTraySettingToBypassExist(printOption)) {
        _restoreValuesToBypassPane(printOption);
        const bool toBypass = boolValueIfString(*printOption.find("AutoTraySettingToBypass"));
        _panePlugInMgr->setStringValue(toBypass ? "True" : "False", "AutoTraySettingToBypass");
        _bypassPaperTraySelectionButton->setEnabled(!toBypass);
    }
    const PlistValue* center = printOption.find("PagePrintOnCenter");
    _panePlugInMgr->setStringValue(center && boolValueIfString(*center) ? "True" : "False", "PagePrintOnCenter");
    for (const char* key : {"ColorMode", "StapleMode", "Punch_PunchHoles", "Fold", "OutputTray", "OffsetMode",
                            "QVInputSlot", "DuplexMode"}) {
        _setMainControl(key, printOption);
        const std::string name = key;
        if (name == "StapleMode" || name == "Punch_PunchHoles" || name == "Fold" || name == "OutputTray")
            _panePlugInMgr->updateOldValue(name);
    }
    if (!_isMyPluginPDE) return noErr;
    if (auto copies = textIn(printOption, "NumCopies")) setCopies(*copies);
    const auto slot = textIn(printOption, "QVInputSlot");
    setQVInputSlot(slot);
    if (slot) _panePlugInMgr->setStringValue(*slot, "QVInputSlot");
    for (const char* key : {"NumCopies", "InputSlot"})
        if (const PlistValue* value = _printOption.find(key))
            _setValueToPpdDictionary(nullptr, key, PaneValueText::textOfValue(_stringFromBooleanIfNeed(*value)));
    return noErr;
}

void TarnPDEByCocoa::_gatherValuesFromAutomaticPane(PlistDictionary& printOption) {
    if (!_AutomaticPaperTraySelection) return;
    const PlistDictionary texts = _AutomaticPaperTraySelection->getTextFieldStringDictionary();
    if (auto tabbed = _controlText("PaperType_MediaTypeTabbed"))
        printOption.set("PaperType_MediaTypeTabbed", *tabbed);
    else if (auto type = _controlText("PaperTypeD"))
        printOption.set("PaperTypeD", *type);
    if (hasNonEmptyText(texts, "PaperTypeCustomName")) printOption.set("PaperTypeCustomName", *textIn(texts, "PaperTypeCustomName"));
    if (auto sequence = textIn(texts, "MediaTypeSequence")) printOption.set("MediaTypeSequence", *sequence);
    if (auto color = _controlText("PaperColor")) printOption.set("PaperColor", *color);
    if (auto name = textIn(texts, "PaperColorCustomName")) printOption.set("PaperColorCustomName", *name);
    if (hasNonEmptyText(texts, "MediaTypeWeightValue"))
        printOption.set("MediaTypeWeightValue", *textIn(texts, "MediaTypeWeightValue"));
    else if (auto weight = _controlText("MediaTypeWeight"))
        printOption.set("MediaTypeWeight", *weight);
    for (const char* key : {"MediaTypeCoatingMaterial", "MediaTypeDrilled", "MediaTypeGlossFine", "MediaTypePreprinted"})
        if (hasNonEmptyText(texts, key))
            if (auto value = _controlText(key)) printOption.set(key, *value);
}

void TarnPDEByCocoa::_restoreValuesToAutomaticPane(const PlistDictionary& printOption) {
    if (!_AutomaticPaperTraySelection) return;
    _setMainControl(printOption.contains("PaperType_MediaTypeTabbed") ? "PaperType_MediaTypeTabbed" : "PaperTypeD",
                    printOption);
    _setMainControl(hasNonEmptyText(printOption, "PaperTypeCustomNumber") ? "PaperTypeCustomNumber" : "PaperTypeCustomName",
                    printOption);
    _setMainControl("MediaTypeSequence", printOption);
    _setMainControl("PaperColor", printOption);
    _setMainControl("PaperColorCustomName", printOption);
    _setMainControl(hasNonEmptyText(printOption, "MediaTypeWeightValue") ? "MediaTypeWeightValue" : "MediaTypeWeight",
                    printOption);
    for (const char* key : {"MediaTypeCoatingMaterial", "MediaTypeDrilled", "MediaTypeGlossFine", "MediaTypePreprinted"})
        if (hasNonEmptyText(printOption, key)) _setMainControl(key, printOption);
}

void TarnPDEByCocoa::_gatherValuesFromBypassPane(PlistDictionary& printOption) {
    if (!_BypassPaperTraySelection) return;
    for (const char* key : {bypassPaperTypeKey, "PaperColorBypass", "MediaTypeWeightBypass"})
        if (auto value = _controlText(key)) printOption.set(key, *value);
    const PlistDictionary texts = _BypassPaperTraySelection->getTextFieldStringDictionary();
    if (auto sequence = textIn(texts, "MediaTypeSequenceBypass")) printOption.set("MediaTypeSequenceBypass", *sequence);
}

void TarnPDEByCocoa::_restoreValuesToBypassPane(const PlistDictionary& printOption) {
    if (!_BypassPaperTraySelection) return;
    for (const char* key : {bypassPaperTypeKey, "MediaTypeSequenceBypass", "PaperColorBypass", "MediaTypeWeightBypass"})
        _setMainControl(key, printOption);
}

}  // namespace ComQuorvantVelmar_Plugin
