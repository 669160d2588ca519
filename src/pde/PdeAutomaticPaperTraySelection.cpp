#include "pde/PdeAutomaticPaperTraySelection.h"

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "panes/PaneLayout.h"
#include "pde/PanelButton.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* bypassPaperTypeKey =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

// The sheet's interface is laid out twice as wide as it is shown; _resizeWindow halves it.
constexpr double designedWindowWidth = 2 * (VORNUI::defaultWidth + 24 - 32);
constexpr double designedSeparatorWidth = 2 * (VORNUI::defaultWidth - 16);

std::string localized(const std::shared_ptr<Bundle>& bundle, const std::string& key) {
    return bundle ? localizedStringInBundle(*bundle, key, "Localizable") : key;
}

}  // namespace

PdeAutomaticPaperTraySelection::PdeAutomaticPaperTraySelection()
    : _View(std::make_shared<ViewNode>()),
      _vorn_PaperType_MediaTypeTabbed(std::make_shared<VORNUI>()),
      _vorn_PaperTypeD(std::make_shared<VORNUI>()),
      _vorn_PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber(
          std::make_shared<VORNUI>()),
      _vorn_PaperTypeCustomName(std::make_shared<VORNUI>()),
      _vorn_MediaTypeSequence(std::make_shared<VORNUI>()),
      _vorn_PaperColor(std::make_shared<VORNUI>()),
      _vorn_PaperColorCustomName(std::make_shared<VORNUI>()),
      _vorn_MediaTypeWeightValue(std::make_shared<VORNUI>()),
      _vorn_MediaTypeWeight(std::make_shared<VORNUI>()),
      _vorn_MediaTypeCoatingMaterial(std::make_shared<VORNUI>()),
      _vorn_MediaTypeDrilled(std::make_shared<VORNUI>()),
      _vorn_MediaTypeGlossFine(std::make_shared<VORNUI>()),
      _vorn_MediaTypePreprinted(std::make_shared<VORNUI>()),
      _vorn_PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_MediaTypeDrilledBypass_PaperTypeCustomNumberBypass(
          std::make_shared<VORNUI>()),
      _vorn_MediaTypeSequenceBypass(std::make_shared<VORNUI>()),
      _vorn_PaperColorBypass(std::make_shared<VORNUI>()),
      _vorn_MediaTypeWeightBypass(std::make_shared<VORNUI>()),
      _separator(std::make_shared<ViewNode>()),
      _close(std::make_shared<PanelButton>()) {
    _close->setAction([this](PanelButton&) { clickButtonClose(); });
}

PdeAutomaticPaperTraySelection::~PdeAutomaticPaperTraySelection() = default;

bool PdeAutomaticPaperTraySelection::initializePanel(std::shared_ptr<Bundle> bundle, bool bypassFlag,
                                                     PanePlugInMgr& callback) {
    _plugInBundle = std::move(bundle);
    _uiFilePath = callback.getUIFilePath();
    _bypassFlag = bypassFlag;
    // The pane manager has read the UI description once for every pane and the panel; the
    // sheet builds from that reading rather than reading and copying the whole file again.
    if (const PlistDictionary* shared = _uiFilePath.empty() ? nullptr : callback.uiDescriptions())
        initCtrl(*shared);
    else
        initCtrl(_readDescriptions());
    return true;
}

void PdeAutomaticPaperTraySelection::initCtrl(const PlistDictionary& descriptions) {
    _View->removeAllSubviews();
    _vornuiList.clear();
    if (_bypassFlag)
        _initCtrlBypass(descriptions);
    else
        _initCtrlAutomatic(descriptions);
    _View->addSubview(_separator);
    _View->addSubview(_close);
    PaneLayout::layOut(*_View);
    const ViewFrame separatorFrame = _separator->frame();
    _separator->setFrame({separatorFrame.x, separatorFrame.y, designedSeparatorWidth, 1});
    _windowFrame = {0, 0, designedWindowWidth, _View->frame().height};
    _close->setTitle(localized(_plugInBundle, "close"));
    _resizeWindow();
}

PlistDictionary PdeAutomaticPaperTraySelection::_readDescriptions() const {
    std::string path = _uiFilePath;
    if (path.empty() && _plugInBundle) path = _plugInBundle->pathForResource("UI", "plist");
    auto file = path.empty() ? std::nullopt : PlistIO::readFile(path);
    return file && file->dictionary() ? std::move(*file->dictionary()) : PlistDictionary();
}

bool PdeAutomaticPaperTraySelection::_describe(const PlistDictionary& descriptions, const std::string& key,
                                               const std::shared_ptr<VORNUI>& control, bool listed) {
    const PlistValue* description = descriptions.find(key);
    if (!description || !description->dictionary()) return false;
    control->setControlDictionary(description->dictionary(), _plugInBundle);
    control->updateControl();
    _View->addSubview(control);
    if (listed) _vornuiList[key] = control;
    return true;
}

void PdeAutomaticPaperTraySelection::_initCtrlAutomatic(const PlistDictionary& descriptions) {
    if (!_describe(descriptions, "PaperType_MediaTypeTabbed", _vorn_PaperType_MediaTypeTabbed, true))
        _describe(descriptions, "PaperTypeD", _vorn_PaperTypeD, true);
    _describe(descriptions, "PaperTypeCustomName", _vorn_PaperTypeCustomName, true);
    _describe(descriptions, "MediaTypeSequence", _vorn_MediaTypeSequence, true);
    _describe(descriptions, "PaperColor", _vorn_PaperColor, true);
    _describe(descriptions, "PaperColorCustomName", _vorn_PaperColorCustomName, true);
    if (!_describe(descriptions, "MediaTypeWeightValue", _vorn_MediaTypeWeightValue, true))
        _describe(descriptions, "MediaTypeWeight", _vorn_MediaTypeWeight, true);
    _describe(descriptions, "MediaTypeCoatingMaterial", _vorn_MediaTypeCoatingMaterial, true);
    _describe(descriptions, "MediaTypeDrilled", _vorn_MediaTypeDrilled, true);
    _describe(descriptions, "MediaTypeGlossFine", _vorn_MediaTypeGlossFine, true);
    _describe(descriptions, "MediaTypePreprinted", _vorn_MediaTypePreprinted, true);
    setWindowTitle(localized(_plugInBundle, "AutomaticWindowTitle"));
}

// The list answers the sheet's automatic weight control for the bypass weight key, not the
// bypass weight control the sheet shows; the panel reads and writes the bypass weight by
// key, and stored settings rely on what that answers, so the pairing stays.
void PdeAutomaticPaperTraySelection::_initCtrlBypass(const PlistDictionary& descriptions) {
    _describe(descriptions, bypassPaperTypeKey,
              _vorn_PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_MediaTypeDrilledBypass_PaperTypeCustomNumberBypass,
              true);
    _describe(descriptions, "MediaTypeSequenceBypass", _vorn_MediaTypeSequenceBypass, true);
    _describe(descriptions, "PaperColorBypass", _vorn_PaperColorBypass, true);
    _describe(descriptions, "MediaTypeWeightBypass", _vorn_MediaTypeWeightBypass, false);
    _vornuiList["MediaTypeWeightBypass"] = _vorn_MediaTypeWeight;
    setWindowTitle(localized(_plugInBundle, "BypassWindowTitle"));
}

void PdeAutomaticPaperTraySelection::_resizeWindow() {
    ViewFrame separatorFrame = _separator->frame();
    separatorFrame.width = separatorFrame.width / 2 + 16;
    _separator->setFrame(separatorFrame);
    _windowFrame.width = _windowFrame.width / 2 + 32;
}

void PdeAutomaticPaperTraySelection::setPaperTypeCustomList(const PlistValue& list) {
    const auto& control =
        _bypassFlag
            ? _vorn_PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_MediaTypeDrilledBypass_PaperTypeCustomNumberBypass
            : _vorn_PaperTypeD;
    const std::optional<std::string> value = control->getStringValue();
    control->addPopupButtonArray(list);
    if (value) control->setStringValue(*value);
}

std::shared_ptr<VORNUI> PdeAutomaticPaperTraySelection::_listed(const std::string& key) const {
    auto found = _vornuiList.find(key);
    return found == _vornuiList.end() ? nullptr : found->second;
}

std::optional<std::string> PdeAutomaticPaperTraySelection::_listedValue(const std::string& key) const {
    auto control = _listed(key);
    return control ? control->getStringValue() : std::nullopt;
}

void PdeAutomaticPaperTraySelection::modalWindow(DidEnd didEnd) {
    _parentDidEndSelector = std::move(didEnd);
    // The paper type's own rules decide which of the other settings apply.
    if (auto paperType = _listed("PaperType_MediaTypeTabbed") ? _listed("PaperType_MediaTypeTabbed")
                                                               : _listed("PaperTypeD"))
        paperType->popupButtonAction();
    if (auto customColor = _listed("PaperColorCustomName"))
        customColor->setEnabled(_listedValue("PaperColor") == "StkCustom");
    _visible = true;
    runModal();
    _visible = false;
}

void PdeAutomaticPaperTraySelection::clickButtonClose() {
    _visible = false;
    if (_parentDidEndSelector) _parentDidEndSelector();
    stopModalWithCode(1);
}

PlistDictionary PdeAutomaticPaperTraySelection::getTextFieldStringDictionary() {
    PlistDictionary texts;
    auto valueOrNull = [](const std::optional<std::string>& value) { return value ? PlistValue(*value) : PlistValue(); };
    if (_bypassFlag) {
        texts.set("MediaTypeSequenceBypass", valueOrNull(_vorn_MediaTypeSequenceBypass->getStringValue()));
        return texts;
    }
    if (_listed("PaperTypeCustomName")) texts.set("PaperTypeCustomName", _listedValue("PaperTypeCustomName").value_or(""));
    texts.set("MediaTypeSequence", valueOrNull(_listedValue("MediaTypeSequence")));
    if (_listed("PaperColorCustomName"))
        texts.set("PaperColorCustomName", _listedValue("PaperColorCustomName").value_or(""));
    for (const char* key : {"MediaTypeWeightValue", "MediaTypePreprinted", "MediaTypeCoatingMaterial", "MediaTypeDrilled"})
        if (_listed(key)) texts.set(key, valueOrNull(_listedValue(key)));
    return texts;
}

}  // namespace ComQuorvantVelmar_Plugin
