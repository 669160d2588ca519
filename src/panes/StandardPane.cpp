#include "panes/StandardPane.h"

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "panes/PaneLayout.h"
#include "panes/PanePlugInMgr.h"
#include "settings_ui/VORNUI.h"
#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

using ListOperation = std::optional<PlistValue> (*)(PanePlugInMgr&);

// The manager's list operations by the command name a layout file gives.
ListOperation listOperation(const std::string& command) {
    static const std::pair<const char*, ListOperation> operations[] = {
        {"JobResource-COLOR_PATCH", [](PanePlugInMgr& m) { return m.getColorPatchFileList(); }},
        {"JobResource-NOTE", [](PanePlugInMgr& m) { return m.getNoteFileList(); }},
        {"JobResource-CUSTOM_NOTE", [](PanePlugInMgr& m) { return m.getCustomNoteFileList(); }},
        {"JobResource-PAGENATION", [](PanePlugInMgr& m) { return m.getPagenationFileList(); }},
        {"JobResource-FORM", [](PanePlugInMgr& m) { return m.getFormFileList(); }},
        {"JobResource-SPECIAL_TONER", [](PanePlugInMgr& m) { return m.getSpecialTonerFileList(); }},
        {"JobResource-WATERMARK", [](PanePlugInMgr& m) { return m.getWaterMarkFileList(); }},
        {"JobResource-TRAPPING", [](PanePlugInMgr& m) { return m.getTrappingFileList(); }},
        {"JobResource-NORMALIZER", [](PanePlugInMgr& m) { return m.getNormalizerFileList(); }},
        {"JobResource-IMPOSITION", [](PanePlugInMgr& m) { return m.getImpositionFileList(); }},
        {"OutputProfileFile-MEASUREMENT", [](PanePlugInMgr& m) { return m.getOutputProfileFileList(0); }},
        {"OutputProfileFile-ICC", [](PanePlugInMgr& m) { return m.getOutputProfileFileList(1); }},
        {"CMYKInputProfileFile-MEASUREMENT", [](PanePlugInMgr& m) { return m.getCMYKInputProfileFileList(0); }},
        {"CMYKInputProfileFile-ICC", [](PanePlugInMgr& m) { return m.getCMYKInputProfileFileList(1); }},
        {"DensityAdjustProfile", [](PanePlugInMgr& m) { return m.getDensityAdjustProfileList(); }},
        {"UserTrcProfile", [](PanePlugInMgr& m) { return m.getUserTrcProfileList(); }},
        {"RGBInputProfileFile", [](PanePlugInMgr& m) { return m.getRGBInputProfileFileList(); }},
        {"DeviceLinkFile", [](PanePlugInMgr& m) { return m.getDeviceLinkFileList(); }},
        {"ColorSubst", [](PanePlugInMgr& m) { return m.getColorSubstList(); }},
        {"CalibFile", [](PanePlugInMgr& m) { return m.getCalibFileList(); }},
        {"Font", [](PanePlugInMgr& m) { return m.getFontList(); }},
        {"JobFolder", [](PanePlugInMgr& m) { return m.getJobFolderList(); }},
    };
    for (const auto& [name, operation] : operations)
        if (command == name) return operation;
    return nullptr;
}

// Pop-up entries [name, name] from the first column of a row list.
PlistArray entriesOfRows(const PlistValue& rows) {
    PlistArray entries;
    for (const PlistValue& row : rows.array() ? *rows.array() : PlistArray{}) {
        const PlistArray* cells = row.array();
        const std::string* name = cells && !cells->empty() ? (*cells)[0].string() : nullptr;
        if (!name || name->empty()) continue;
        PlistArray entry;
        entry.emplace_back(*name);
        entry.emplace_back(*name);
        entries.emplace_back(std::move(entry));
    }
    return entries;
}

std::shared_ptr<VORNUI> findControl(const std::vector<std::shared_ptr<VORNUI>>& controls, const std::string& key) {
    for (const auto& control : controls) {
        if (!control) continue;
        if (control->mainKeyword() == key) return control;
        if (auto child = findControl(control->childControls(), key)) return child;
    }
    return nullptr;
}

}  // namespace

bool StandardPane::initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) {
    _bundle = bundle;
    _callback = &callback;
    _role = callback.roleName(this);
    const PlistValue* layoutName = bundle ? bundle->objectForInfoDictionaryKey("QVPaneLayout") : nullptr;
    auto layout = DictionaryNamed(layoutName ? layoutName->stringOr("PaneLayout") : "PaneLayout", bundle.get());
    const PlistValue* view = layout ? layout->find("view") : nullptr;
    _rootView = view ? PaneLayout::viewOfDescription(
                           *view, _role, [this](const std::string& label) { return localizedInPaneTable(label); })
                     : nullptr;
    if (!_rootView) {
        Diagnostics::log("### pane without layout: " + (bundle ? bundle->bundlePath() : std::string("?")));
        return false;
    }
    _layout = std::move(*layout);
    _controls = PanePlugInMgr::getVORNUIControls(_rootView.get());
    PanePlugInMgr::ControlDictionary byKey;
    PanePlugInMgr::setupVORNUIControls(&_controls, descriptionsForControls(), &byKey, _bundle);
    for (const auto& [key, control] : byKey)
        if (control->mainKeyword().empty()) Diagnostics::log("### pane setting without description: " + key);
    callback.buildPaneUi(*this, _bundle);
    return true;
}

const PlistDictionary* StandardPane::descriptionsForControls() {
    const PlistDictionary* shared = _callback->uiDescriptions();
    auto own = DictionaryNamed("UI", _bundle.get());
    if (!own) return shared;
    _ownDescriptions = shared ? *shared : PlistDictionary();
    for (auto& [key, description] : *own) _ownDescriptions->set(key, std::move(description));
    return &*_ownDescriptions;
}

std::optional<std::vector<std::shared_ptr<VORNUI>>> StandardPane::getListVORNUI() { return _controls; }

void StandardPane::willShow() {
    const PlistValue* lists = _layout.find("resourceLists");
    if (!lists || !lists->dictionary() || !_callback) return;
    for (const auto& [key, command] : *lists->dictionary())
        if (command.string()) refreshResourceList(key, *command.string());
}

// The pop-up keeps a chosen name the printer no longer lists, so that the setting is not
// lost by merely opening the dialog.
void StandardPane::refreshResourceList(const std::string& key, const std::string& command) {
    auto control = controlForKey(key);
    ListOperation operation = listOperation(command);
    if (!control || !operation) return;
    auto rows = operation(*_callback);
    if (!rows) return;
    const auto value = control->getUnsportValue() ? control->getUnsportValue() : control->getStringValue();
    control->addPopupButtonArray(PlistValue(entriesOfRows(*rows)));
    if (value) control->setStringValue(*value);
}

std::string StandardPane::panelName() {
    std::string title = localizedInPaneTable(_layout.stringFor("title", ""));
    if (title.find("%@") != std::string::npos)
        title = PaneLayout::withRole(title, _role ? std::optional(localizedInPaneTable(*_role)) : std::nullopt);
    return title;
}

std::shared_ptr<ViewNode> StandardPane::panelView() {
    if (_rootView && !_isPanelLaidOut) {
        PaneLayout::layOut(*_rootView);
        _isPanelLaidOut = true;
    }
    return _rootView;
}

void StandardPane::updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType,
                                       bool useServerSetting, bool sameSettingForNext) {
    if (!_callback) return;
    const bool enabled = _callback->_isEnable(fileType, useServerSetting, sameSettingForNext, unifiedFileType);
    for (const auto& control : _controls) control->setEnabled(enabled, "ServerSetting");
}

void StandardPane::revertToDefault() {
    for (const auto& control : _controls) control->setDefault();
}

std::shared_ptr<VORNUI> StandardPane::controlForKey(const std::string& key) const { return findControl(_controls, key); }

std::string StandardPane::localizedInPaneTable(const std::string& key) const {
    return _bundle ? localizedStringInBundle(*_bundle, key, "Pane") : key;
}

OSTRIN_REGISTER_CLASS(StandardPane::registeredName, StandardPane)

}  // namespace ComQuorvantVelmar_Plugin
