#pragma once

#include <memory>
#include <vector>

#include "qt/ModalDialogView.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace ComQuorvantVelmar_Plugin {

class DetailedSettingsWinController;
class PaneNavigationTree;
class TabViewNode;
class ViewTreeWidget;

/// The detailed settings window: every pane as a page, shown as tabs on top or, in the
/// tree style, as a tabless page beside the tree of panes; the view style pop-up above,
/// and below "Revert to Default Settings", the version info, Cancel and OK (the
/// controller's "Setting") in the platform's order. The controller decides: OK with
/// settings that do not fit together keeps the window on screen, the message about it a
/// sheet of the window. Pages taller than the window scroll.
class DetailedSettingsWindow : public ModalDialogView {
    Q_OBJECT
public:
    /// The window of controller, which must outlive it; it shows the panes the controller
    /// holds when it runs (after awakeFromNib).
    explicit DetailedSettingsWindow(DetailedSettingsWinController& controller, QWidget* parent = nullptr);
    ~DetailedSettingsWindow() override;

    QComboBox* viewStylePopup() const { return _viewStyle; }
    PaneNavigationTree* paneTree() const { return _tree; }
    QTabWidget* pages() const { return _pages; }
    /// The rendering of the pane on page index; nullptr out of range.
    ViewTreeWidget* pageView(int index) const;
    QPushButton* okButton() const { return _ok; }
    QPushButton* cancelButton() const { return _cancel; }
    QPushButton* revertButton() const { return _revert; }
    QPushButton* versionInfoButton() const { return _versionInfo; }

protected:
    void refreshControls() override;
    void cancelByUser() override;

private:
    QLayout* buildViewStyleRow();
    QLayout* buildButtonRow();
    void rebuildPages();
    void showViewStyle();
    void showPages();
    void pageSelectedByUser(int index);

    DetailedSettingsWinController& _controller;
    std::shared_ptr<TabViewNode> _shownTabs;
    QLabel* _viewStyleLabel = nullptr;
    QComboBox* _viewStyle = nullptr;
    PaneNavigationTree* _tree = nullptr;
    QTabWidget* _pages = nullptr;
    std::vector<ViewTreeWidget*> _pageViews;
    QPushButton* _revert = nullptr;
    QPushButton* _versionInfo = nullptr;
    QPushButton* _ok = nullptr;
    QPushButton* _cancel = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
