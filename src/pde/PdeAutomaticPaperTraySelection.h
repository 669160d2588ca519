#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/PlistValue.h"
#include "panes/PanePlugInMgr.h"
#include "core/ModalWindow.h"
#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;
class PanelButton;
class VORNUI;
class ViewNode;

/// One of the panel's two tray sheets: the automatic sheet, where the user describes the
/// paper by which the press picks a tray (type, custom name, tab sequence, colour, weight,
/// coating, drilling, gloss, preprinted), or the bypass sheet with the same idea for the
/// bypass tray. It builds its settings from the extension's UI description and hands them
/// to the panel by option key.
class PdeAutomaticPaperTraySelection : public ModalWindow {
public:
    /// Called on the panel when the sheet closes.
    using DidEnd = std::function<void()>;

    /// The sheet's content: its settings in the order the description gives them, the
    /// separator and the close button, none described yet.
    PdeAutomaticPaperTraySelection();
    ~PdeAutomaticPaperTraySelection() override;
    PdeAutomaticPaperTraySelection(const PdeAutomaticPaperTraySelection&) = delete;
    PdeAutomaticPaperTraySelection& operator=(const PdeAutomaticPaperTraySelection&) = delete;

    /// Keeps the bundle, takes the UI description from the manager (else the bundle's
    /// "UI.plist") and builds the flavour's settings; always true.
    bool initializePanel(std::shared_ptr<Bundle> bundle, bool bypassFlag, PanePlugInMgr& callback);
    /// Adds the printer's custom paper types to the flavour's paper type pop-up, keeping
    /// its choice.
    void setPaperTypeCustomList(const PlistValue& list);
    /// Shows the sheet modally; didEnd runs on the panel when it closes.
    void modalWindow(DidEnd didEnd);
    /// Closes the sheet: hides it, tells the panel, stops the modal run.
    void clickButtonClose();
    /// The texts typed in the sheet by option key (see the definition).
    PlistDictionary getTextFieldStringDictionary();
    /// The settings the description declares, by option key. In the bypass sheet the key
    /// "MediaTypeWeightBypass" answers the sheet's automatic weight control.
    const PanePlugInMgr::ControlDictionary& getListVORNUI() const { return _vornuiList; }

    bool bypassFlag() const { return _bypassFlag; }
    const ViewFrame& windowFrame() const { return _windowFrame; }
    bool isVisible() const { return _visible; }
    const std::shared_ptr<ViewNode>& contentView() const { return _View; }
    const std::shared_ptr<ViewNode>& separator() const { return _separator; }
    const std::shared_ptr<PanelButton>& closeButton() const { return _close; }

private:
    void initCtrl(const PlistDictionary& descriptions);
    void _initCtrlAutomatic(const PlistDictionary& descriptions);
    void _initCtrlBypass(const PlistDictionary& descriptions);
    void _resizeWindow();
    bool _describe(const PlistDictionary& descriptions, const std::string& key,
                   const std::shared_ptr<VORNUI>& control, bool listed);
    PlistDictionary _readDescriptions() const;
    std::shared_ptr<VORNUI> _listed(const std::string& key) const;
    std::optional<std::string> _listedValue(const std::string& key) const;

    std::shared_ptr<ViewNode> _View;
    bool _bypassFlag = false;
    std::shared_ptr<VORNUI> _vorn_PaperType_MediaTypeTabbed;
    std::shared_ptr<VORNUI> _vorn_PaperTypeD;
    std::shared_ptr<VORNUI>
        _vorn_PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber;
    std::shared_ptr<VORNUI> _vorn_PaperTypeCustomName;
    std::shared_ptr<VORNUI> _vorn_MediaTypeSequence;
    std::shared_ptr<VORNUI> _vorn_PaperColor;
    std::shared_ptr<VORNUI> _vorn_PaperColorCustomName;
    std::shared_ptr<VORNUI> _vorn_MediaTypeWeightValue;
    std::shared_ptr<VORNUI> _vorn_MediaTypeWeight;
    std::shared_ptr<VORNUI> _vorn_MediaTypeCoatingMaterial;
    std::shared_ptr<VORNUI> _vorn_MediaTypeDrilled;
    std::shared_ptr<VORNUI> _vorn_MediaTypeGlossFine;
    std::shared_ptr<VORNUI> _vorn_MediaTypePreprinted;
    std::shared_ptr<VORNUI>
        _vorn_PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_MediaTypeDrilledBypass_PaperTypeCustomNumberBypass;
    std::shared_ptr<VORNUI> _vorn_MediaTypeSequenceBypass;
    std::shared_ptr<VORNUI> _vorn_PaperColorBypass;
    std::shared_ptr<VORNUI> _vorn_MediaTypeWeightBypass;
    std::shared_ptr<ViewNode> _separator;
    std::shared_ptr<PanelButton> _close;
    std::shared_ptr<Bundle> _plugInBundle;
    DidEnd _parentDidEndSelector;
    std::string _uiFilePath;
    PanePlugInMgr::ControlDictionary _vornuiList;
    ViewFrame _windowFrame;
    bool _visible = false;
};

}  // namespace ComQuorvantVelmar_Plugin
