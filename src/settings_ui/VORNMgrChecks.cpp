#include <algorithm>

#include "core/Alert.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* lineFormat = "[%@]:[%@]\r";

void appendName(std::vector<std::string>& names, const std::string& name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

}  // namespace

std::string VORNMgr::localized(const std::string& key) const {
    return SettingsText::localizedUIText(_uiBundle.get(), key);
}

// A less/greater match shows its threshold; an equal match the setting's current choice.
std::string VORNMgr::valueText(VORNUI& control, int type, const std::string& threshold) {
    if (type == 1) return SettingsText::formatWithObjects(localized("Less Than %@"), {threshold});
    if (type == 2) return SettingsText::formatWithObjects(localized("More Than %@"), {threshold});
    return localized(control.getSelectedOptionText().value_or(""));
}

std::string VORNMgr::conflictedLines(const ConflictInfo& info) {
    std::string lines;
    for (const std::string& key : info.conflictedKeyList) {
        VORNUI* control = firstControl(key);
        if (!control) continue;
        const std::string text =
            valueText(*control, info.conflictedTypeOthersDict.at(key), info.conflictedValueOthersDict.at(key));
        lines += SettingsText::formatWithObjects(lineFormat, {localized(control->mainKeywordText()), text});
    }
    return lines;
}

std::string VORNMgr::restoreLines(const ConflictInfo& info) {
    std::string lines;
    for (const std::string& key : info.restoreKeyList) {
        VORNUI* control = firstControl(key);
        if (!control) continue;
        const std::string& value = info.restoreDict.at(key);
        // Fields and sliders have no choice texts; their value speaks for itself.
        const std::string text = control->getOptionText(value).value_or(value);
        lines += SettingsText::formatWithObjects(lineFormat, {localized(control->mainKeywordText()), localized(text)});
    }
    return lines;
}

std::string VORNMgr::ownLine(VORNUI& control, const ConflictInfo& info) {
    return SettingsText::formatWithObjects(localized("The following properties cannot be set at the same time.\r[%@]:[%@]\r"),
                                           {localized(control.mainKeywordText()),
                                            valueText(control, info.conflictedTypeSelf, info.conflictedValueSelf)});
}

int VORNMgr::_alertDialogMessage(const std::string& message, const std::string& button1, const std::string& button2) {
    AlertRequest request;
    request.messageText = message;
    if (!button1.empty()) request.buttons.push_back(button1);
    if (!button2.empty()) request.buttons.push_back(button2);
    return Alerts::runModal(request);
}

void VORNMgr::applyRestore(const ConflictInfo& info, std::vector<std::string>& notificationNames) {
    for (const std::string& key : info.restoreKeyList) {
        if (!firstControl(key)) continue;
        setStringValue(key, info.restoreDict.at(key));
        appendName(notificationNames, key);
        cooperate(key, notificationNames);
    }
}

bool VORNMgr::validateBeforeChange(const std::string& keyword, const std::string& value,
                                   const std::optional<std::string>& name) {
    auto info = conflictInfo(keyword, value);
    if (!info) return true;
    const std::string shownName = name ? *name : firstControl(keyword)->mainKeywordText();
    const std::string message =
        SettingsText::formatWithObjects(localized("When the following settings are made, %@ cannot be set.\r"),
                                        {localized(shownName)}) +
        conflictedLines(*info) + localized("\rDo you want to change the settings to the following?\r") +
        restoreLines(*info);
    if (_alertDialogMessage(message, localized("Yes"), localized("No")) != AlertFirstButtonReturn) return false;
    std::vector<std::string> names;
    applyRestore(*info, names);
    for (const std::string& changed : names) NotifyUnit::postNotificationName(changed);
    return true;
}

std::optional<std::vector<std::string>> VORNMgr::setStringValueWithRestoreConfliction(const std::string& keyword,
                                                                                      const std::string& value) {
    if (_mainKeywordAndControls.empty()) return std::nullopt;
    auto info = conflictInfo(keyword, value);
    std::vector<std::string> names;
    if (info) applyRestore(*info, names);
    setStringValue(keyword, value);
    if (!info) return std::nullopt;
    return names;
}

bool VORNMgr::validateAfterChange(const std::string& keyword, std::vector<std::string>& notificationNames) {
    VORNUI* control = firstControl(keyword);
    if (!control) return true;
    const auto value = control->getStringValue();
    if (!value) return true;
    if (control->getOldValue() == value) return false;
    const auto fallback = control->getOldValue() ? control->getOldValue() : control->getDefault();
    std::optional<ConflictInfo> info;
    std::string message;
    // Settings that must change whenever this one changes at all are offered first, but
    // not while a whole set of values is applied.
    if (!_isCollectiveChange) {
        info = conflictInfo(keyword, "__ALL__");
        if (info)
            message = SettingsText::formatWithObjects(
                          localized("Do you want to change the settings to the following in order to change [%@]?\r"),
                          {localized(control->mainKeywordText())}) +
                      restoreLines(*info);
    }
    if (!info) {
        info = conflictInfo(keyword, *value);
        if (!info) return true;
        message = ownLine(*control, *info) + conflictedLines(*info) +
                  localized("\rDo you want to change to the following settings to enable the selection?\r") +
                  restoreLines(*info);
    }
    const int response = _alertDialogMessage(message, localized("Yes"), localized("No"));
    if (response == AlertFirstButtonReturn) {
        applyRestore(*info, notificationNames);
        return true;
    }
    if (response == AlertSecondButtonReturn) {
        if (fallback) setStringValue(keyword, *fallback);
        return false;
    }
    return true;
}

std::string VORNMgr::unrestorableMessage(VORNUI& control, const ConflictInfo& info,
                                         const std::optional<std::string>& fallback) {
    const std::string ownName = localized(control.mainKeywordText());
    std::string message;
    if (info.title)
        message = localized(*info.title) +
                  SettingsText::formatWithObjects("\r[%@]:[%@]\r",
                                                  {ownName, valueText(control, info.conflictedTypeSelf, info.conflictedValueSelf)});
    else
        message = ownLine(control, info);
    message += conflictedLines(info) + "\r";
    if (info.message) return message + localized(*info.message);
    const std::string fallbackText = fallback ? control.getOptionText(*fallback).value_or(*fallback) : std::string();
    return message + localized("選択を無効にして、以下の設定に戻します。") +
           SettingsText::formatWithObjects("\r[%@]:[%@]\r", {ownName, localized(fallbackText)});
}

bool VORNMgr::validateUnrestorableConflict(const std::string& keyword, std::vector<std::string>&) {
    VORNUI* control = firstControl(keyword);
    if (!control) return true;
    const auto value = control->getStringValue();
    if (!value) return true;
    if (control->getOldValue() == value) return false;
    const auto fallback = control->getOldValue() ? control->getOldValue() : control->getDefault();
    auto info = searchUnrestorable(*control, *value);
    if (!info) return true;
    _alertDialogMessage(unrestorableMessage(*control, *info, fallback), localized("OK"), "");
    if (fallback) setStringValue(keyword, *fallback);
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin
