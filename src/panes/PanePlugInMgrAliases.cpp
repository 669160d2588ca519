#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "panes/PaneValueText_p.h"
#include "panes/PanePlugInMgr.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* hiddenText = "********";

std::shared_ptr<VORNUI> controlWithKeyword(const std::vector<std::shared_ptr<VORNUI>>& controls,
                                           const std::string& key) {
    for (const auto& control : controls) {
        if (!control) continue;
        if (control->mainKeyword() == key) return control;
        if (auto child = controlWithKeyword(control->childControls(), key)) return child;
    }
    return nullptr;
}

// The description's label of value. Radio cells repeat a choice only by mistake, and then
// the last one is the cell the user sees selected; pop-ups show the first.
std::optional<std::string> choiceText(const VORNUI& control, const std::string& value) {
    const PlistDictionary* description = control.controlDictionary();
    const PlistValue* list = description ? description->find("choices") : nullptr;
    if (!list || !list->array()) return std::nullopt;
    const bool lastWins =
        control.controlType() == VORNUI::Type::RadioButton || control.controlType() == VORNUI::Type::HRadioButton;
    std::optional<std::string> text;
    for (const PlistValue& entry : *list->array()) {
        const PlistDictionary* choice = entry.dictionary();
        if (!choice || choice->stringFor("choice", "") != value) continue;
        text = choice->stringFor("text");
        if (!lastWins) break;
    }
    return text;
}

std::string withUnit(const std::string& value, const VORNUI& control) {
    const std::string& unit = control.texts().descText;
    return unit.empty() || value.empty() ? value : value + " " + unit;
}

}  // namespace

bool PanePlugInMgr::isExistsInPpd(const std::string& option, const std::string& optionKeyword) {
    const PpdFileExt* ppd = ppdFile();
    return ppd && ppd->isExists(option, optionKeyword);
}

bool PanePlugInMgr::getAlias(std::string& mainAlias, std::string& optionAlias, const std::string& mainKeyword,
                             const std::string& optionKeyword) {
    const PpdFileExt* ppd = ppdFile();
    if (!ppd || !ppd->isExists(mainKeyword)) return false;
    mainAlias = ppd->mainAlias(mainKeyword).value_or(mainKeyword);
    // The string tables translate a choice under "option:choice"; the PPD's own text is English.
    const std::string tableKey = mainKeyword + ":" + optionKeyword;
    const std::string translated = _bundle ? localizedStringInBundle(*_bundle, tableKey, "Localizable") : tableKey;
    optionAlias = translated != tableKey ? translated : ppd->optionAlias(mainKeyword, optionKeyword).value_or(optionKeyword);
    return true;
}

void PanePlugInMgr::addMenuItem(PlainPopUpButton& popup, const std::string& mainKeyword,
                                const std::optional<std::string>& optionAlias, const std::string& optionKeyword) {
    PlainPopUpButton::Item item;
    setMenuItem(item, mainKeyword, optionAlias, optionKeyword);
    popup.addItem(std::move(item));
}

void PanePlugInMgr::setMenuItem(PlainPopUpButton::Item& item, const std::string& mainKeyword,
                                const std::optional<std::string>& optionAlias, const std::string& optionKeyword) {
    std::string mainAlias;
    std::string alias;
    if (optionAlias)
        item.title = *optionAlias;
    else
        item.title = getAlias(mainAlias, alias, mainKeyword, optionKeyword) ? alias : optionKeyword;
    item.representedObject.set("optionKeyword", optionKeyword);
}

bool PanePlugInMgr::_buildControl(PlainPopUpButton* popup, const std::string& key, PlainControl* titleControl) {
    const PpdFileExt* ppd = ppdFile();
    const auto keywords = ppd ? ppd->optionKeywords(key) : std::nullopt;
    if (!keywords) return false;
    if (popup) {
        popup->removeAllItems();
        for (const std::string& keyword : *keywords) addMenuItem(*popup, key, std::nullopt, keyword);
    }
    if (titleControl) titleControl->setTitle(ppd->mainAlias(key).value_or(key) + ":");
    return true;
}

PanePlugInMgr::ViewInfo PanePlugInMgr::_findViewInfoForKey(const std::string& key) {
    if (!_plugInTable) return {};
    for (const auto& [name, entry] : *_plugInTable) {
        auto controls = entry.paneConroller ? entry.paneConroller->getListVORNUI() : std::nullopt;
        if (!controls) continue;
        if (auto control = controlWithKeyword(*controls, key)) return {&entry, control};
    }
    return {};
}

std::optional<std::string> PanePlugInMgr::_mainAlias(const std::string& key, const ViewInfo& info) {
    if (info.control && !info.control->mainKeywordText().empty()) return info.control->mainKeywordText();
    const PpdFileExt* ppd = ppdFile();
    return ppd ? ppd->mainAlias(key) : std::nullopt;
}

std::optional<std::string> PanePlugInMgr::_optionAlias(const std::string& key, const std::string& optionKeyword,
                                                       const ViewInfo& info) {
    if (const VORNUI* control = info.control.get()) {
        switch (control->controlType()) {
            case VORNUI::Type::SecureTextFieldText: return std::string(optionKeyword.empty() ? "" : hiddenText);
            case VORNUI::Type::TextFieldNumber: return withUnit(optionKeyword, *control);
            case VORNUI::Type::TextFieldText:
            case VORNUI::Type::DatePicker: return optionKeyword;
            default: break;
        }
        // Lists the server fills have no description of their items: the name is the text.
        auto text = choiceText(*control, optionKeyword);
        if (!text) return optionKeyword;
        const Bundle* bundle = info.entry && info.entry->bundle ? info.entry->bundle.get() : _bundle.get();
        return bundle ? localizedStringInBundle(*bundle, *text, "UI") : *text;
    }
    std::string mainAlias;
    std::string optionAlias;
    if (!getAlias(mainAlias, optionAlias, key, optionKeyword)) return std::nullopt;
    return optionAlias;
}

std::optional<PlistDictionary> PanePlugInMgr::summaryInfoFromPrintOption(const PlistDictionary* printOption) {
    if (!printOption) return std::nullopt;
    PlistDictionary summary;
    for (const auto& [key, value] : *printOption) {
        if (value.isNull()) continue;
        const std::string text = PaneValueText::textOfValue(value);
        const ViewInfo info = _findViewInfoForKey(key);
        auto name = _mainAlias(key, info);
        auto shown = _optionAlias(key, text, info);
        if (name && shown) summary.set(*name, *shown);
    }
    return summary;
}

}  // namespace ComQuorvantVelmar_Plugin
