#include "settings_ui/VORNMgr.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/SettingsText_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::string bundlePathOfResources(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    constexpr std::string_view resources = "/Contents/Resources";
    if (path.size() >= resources.size() && path.compare(path.size() - resources.size(), resources.size(), resources) == 0)
        path.erase(path.size() - resources.size());
    return path;
}

constexpr int maximumValidationDepth = 64;

std::string localTimeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[96];
    std::snprintf(text, sizeof text, "%04ld-%02ld-%02ldT%02ld:%02ld:%02ld", static_cast<long>(local.tm_year + 1900),
                  static_cast<long>(local.tm_mon + 1), static_cast<long>(local.tm_mday),
                  static_cast<long>(local.tm_hour), static_cast<long>(local.tm_min), static_cast<long>(local.tm_sec));
    return text;
}

}  // namespace

VORNMgr::VORNMgr() = default;

VORNMgr::~VORNMgr() { NotifyUnit::removeObserver(this); }

void VORNMgr::setPdeResourcePath(const std::string& path) {
    if (!_pdeResourcePath.empty() || path.empty()) return;
    _pdeResourcePath = path;
    _uiBundle = Bundle::bundleWithPath(bundlePathOfResources(path));
}

void VORNMgr::addControl(const std::shared_ptr<VORNUI>& control) {
    if (!control || control->mainKeyword().empty()) return;
    const std::string& keyword = control->mainKeyword();
    auto found = _registryIndex.find(keyword);
    if (found == _registryIndex.end()) {
        found = _registryIndex.emplace(keyword, _mainKeywordAndControls.size()).first;
        _mainKeywordAndControls.emplace_back(keyword, ControlList{});
    }
    ControlList& list = _mainKeywordAndControls[found->second].second;
    if (std::find(list.begin(), list.end(), control) == list.end()) list.push_back(control);
    for (const auto& child : control->childControls()) addControl(child);
    NotifyUnit::removeObserver(this, keyword);
    NotifyUnit::addObserver(this, [this](const Notification& notification) { validateMainKeyword(notification); },
                            keyword);
}

const VORNMgr::ControlList* VORNMgr::controlsOf(const std::string& keyword) const {
    auto found = _registryIndex.find(keyword);
    if (found == _registryIndex.end()) return nullptr;
    return &_mainKeywordAndControls[found->second].second;
}

VORNUI* VORNMgr::firstControl(const std::string& keyword) const {
    const ControlList* list = controlsOf(keyword);
    return list && !list->empty() ? list->front().get() : nullptr;
}

std::string VORNMgr::currentValue(const std::string& keyword) const {
    VORNUI* control = firstControl(keyword);
    return control ? control->getStringValue().value_or("") : std::string();
}

void VORNMgr::validateMainKeyword(const Notification& notification) {
    std::optional<std::string> newValue;
    if (notification.userInfo) newValue = SettingsText::textValue(notification.userInfo->find("Paramater"));
    // Two cooperation rules that set each other to ever new values would recurse without
    // end; a description that does so is cut off instead of taking the dialog down.
    if (_validationDepth >= maximumValidationDepth) {
        Diagnostics::log("### rules of " + notification.name + " keep changing other settings; stopped");
        return;
    }
    ++_validationDepth;
    _validateMainKeyword(notification.name, newValue);
    --_validationDepth;
}

void VORNMgr::setStringValue(const std::string& keyword, const std::string& value) {
    if (const ControlList* list = controlsOf(keyword))
        for (const auto& control : *list) control->setStringValue(value);
}

std::optional<std::string> VORNMgr::getStringValue(const std::string& keyword) {
    const ControlList* list = controlsOf(keyword);
    if (!list || list->empty()) return std::nullopt;
    // Every control is read so that each keeps what it shows; the first one answers.
    std::optional<std::string> result = list->front()->getStringValue();
    for (std::size_t index = 1; index < list->size(); ++index) (*list)[index]->getStringValue();
    return result;
}

void VORNMgr::updateOldValue(const std::string& keyword) {
    if (const ControlList* list = controlsOf(keyword))
        for (const auto& control : *list) control->updateOldValue();
}

PlistDictionary VORNMgr::getAllValueDictionary() {
    PlistDictionary values;
    for (const auto& [keyword, list] : _mainKeywordAndControls) {
        if (list.empty()) continue;
        VORNUI& control = *list.front();
        if (const auto& unsupported = control.getUnsportValue()) {
            values.set(keyword, *unsupported);
            continue;
        }
        auto value = control.getStringValue();
        values.set(keyword, value && !value->empty() ? *value : std::string());
    }
    return values;
}

std::string VORNMgr::backupSettings() {
    const std::string key = localTimeStamp();
    _backups[key] = getAllValueDictionary();
    return key;
}

void VORNMgr::restoreSettings(const std::string& key) {
    _isCollectiveChange = true;
    if (auto found = _backups.find(key); found != _backups.end()) {
        for (const auto& [keyword, value] : found->second) setStringValue(keyword, value.stringOr(""));
        _backups.erase(found);
    }
    _isCollectiveChange = false;
}

void VORNMgr::setDefaults() {
    _isCollectiveChange = true;
    // The list may grow while defaults are posted (a pane registering late), so it is
    // walked by position.
    for (std::size_t entry = 0; entry < _mainKeywordAndControls.size(); ++entry) {
        const ControlList list = _mainKeywordAndControls[entry].second;
        for (const auto& control : list) control->setDefault();
    }
    getAllValueDictionary();
    _isCollectiveChange = false;
}

void VORNMgr::setSettings(const PlistDictionary& settings) {
    _isCollectiveChange = true;
    for (const auto& [keyword, value] : settings)
        if (auto text = SettingsText::textValue(&value)) setStringValue(keyword, *text);
    for (const auto& [keyword, value] : settings)
        if (!value.isNull()) _validateMainKeyword(keyword, std::nullopt);
    _isCollectiveChange = false;
}

// The order is fixed: a setting that cannot be combined at all is reverted first; only a
// value that survives is checked for resolvable conflicts and then drives the enabling,
// hiding and cooperation rules. Other settings hear of their changes afterwards, in the
// order they changed, and may run their own rules in turn.
void VORNMgr::_validateMainKeyword(const std::string& keyword, const std::optional<std::string>& newValue) {
    if (newValue)
        if (VORNUI* control = firstControl(keyword)) control->setStringValue(*newValue);
    std::vector<std::string> names;
    const bool ok = validateUnrestorableConflict(keyword, names);
    bool passed = false;
    if (ok) {
        passed = validateAfterChange(keyword, names);
        conditionSetting(keyword, names);
        if (passed) {
            hide(keyword, names);
            cooperate(keyword, names);
            updateOldValue(keyword);
        }
    } else {
        conditionSetting(keyword, names);
    }
    for (const std::string& name : names) NotifyUnit::postNotificationName(name);
    if (ok && passed)
        NotifyUnit::postNotificationName("ValueChangFinished_" + keyword,
                                         PlistDictionary{{"isCollectiveChange", _isCollectiveChange ? "True" : "False"}});
}

}  // namespace ComQuorvantVelmar_Plugin
