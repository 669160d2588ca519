#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/PlistValue.h"
#include "core/ModalWindow.h"

namespace ComQuorvantVelmar_Plugin {

class PanePlugInMgr;
class PanelButton;
class TabViewNode;

/// The detailed settings window: every pane of the pane manager as a tab (or beside a tree
/// of panes), run modally until the gathered settings pass the consistency check. It also
/// normalises a print option dictionary to the complete option set of the panes, as the
/// panel does before every save. It works on the process's pane manager of the moment.
class DetailedSettingsWinController : public ModalWindow {
public:
    /// The view style pop-up's items: tabs on top (tag 1) and the tree of panes (tag 0).
    enum ViewStyleTag : int { TreeStyleTag = 0, TabStyleTag = 1 };

    /// The one window of the process, built on first use.
    static DetailedSettingsWinController& sharedInstance();
    DetailedSettingsWinController();
    ~DetailedSettingsWinController() override;

    /// Adds to printOption every option the panes know, keeping printOption's own values;
    /// printOption unchanged when the panes gather nothing.
    void reformatPrintOption(PlistDictionary& printOption);
    /// Runs the window until cancel, or OK with settings that pass the consistency check;
    /// printOption then holds what the panes gathered. 1 for OK, 0 for cancel.
    int showAsModalDialog(PlistDictionary& printOption);
    /// The OK button: stops the run with 1.
    void okButton() { stopModalWithCode(1); }
    /// The cancel button: stops the run with 0.
    void cancelButton() { stopModalWithCode(0); }
    /// Shows the defaults in every pane.
    void clickedRevertToDefault();

    /// Titles, the panes as tabs, the tree's width and the view style; once for each pane
    /// manager of the process.
    void awakeFromNib();
    /// Applies the selected view style: tabs on top, or a tabless view beside the tree.
    void setupViewStylePopupButton();
    /// Selects the view style item at index (0 tabs, 1 tree) and applies it.
    void selectViewStyleItem(int index);
    /// Width of the tree's column for a first preferred language.
    static double treeColumnWidthForLanguage(const std::string& language);

    /// Commits the text being typed; false keeps the window open. Given by the view layer;
    /// without one every edit counts as committed.
    void setEditingFinisher(std::function<bool()> finisher) { _endEditing = std::move(finisher); }

    const std::shared_ptr<TabViewNode>& tabView() const { return _tabView; }
    bool isVisible() const { return _visible; }
    bool isTreeShown() const { return _isTreeShown; }
    double tableColumnWidth() const { return _tableColumn0Width; }
    int selectedViewStyleTag() const;
    const std::optional<std::string>& previousSelectedProfileName() const { return _prevSelectedProfileName; }
    void setPreviousSelectedProfileName(std::optional<std::string> name) { _prevSelectedProfileName = std::move(name); }
    const std::shared_ptr<PanelButton>& okButtonControl() const { return _okButton; }
    const std::shared_ptr<PanelButton>& cancelButtonControl() const { return _cancelButton; }
    const std::shared_ptr<PanelButton>& revertToDefaultButton() const { return _revertToDefaultButton; }
    /// The button that opens the about box; the view layer shows the box.
    const std::shared_ptr<PanelButton>& versionInfoButton() const { return _versionInfoButton; }

private:
    void _setTitles();
    void _addPaneTabs();
    bool _endEditingNow() const { return !_endEditing || _endEditing(); }

    std::shared_ptr<PanelButton> _cancelButton;
    std::shared_ptr<PanelButton> _downloadButton;
    std::shared_ptr<PanelButton> _versionInfoButton;
    std::shared_ptr<PanelButton> _okButton;
    std::shared_ptr<PanelButton> _revertToDefaultButton;
    std::optional<std::string> _prevSelectedProfileName;
    std::shared_ptr<TabViewNode> _tabView;
    bool _isTreeShown = false;
    double _tableColumn0Width = 0;
    int _viewStyleIndex = 0;
    std::function<bool()> _endEditing;
    std::weak_ptr<PanePlugInMgr> _awakeWith;
    bool _visible = false;
};

}  // namespace ComQuorvantVelmar_Plugin
