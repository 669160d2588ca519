#pragma once

#include <QWidget>

#include <string>
#include <vector>

#include "favorites/PopUpMenuModel.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class PanelButton;
class PanelViewWidget;
class TarnPDEByCocoa;
class VORNUIWidget;

/// The panel "Ostrin Flow" as a Qt widget, titled so for a print dialog's tab: the panel's
/// settings, the favorite pop-up, the job name and the buttons of the tray sheets, the
/// detailed settings and the revert, as the panel's view holds them. It renders and
/// forwards: every click and choice goes to the panel, which decides, and the widget then
/// shows what the panel holds. Like a print dialog with its panels, it tells the panel
/// when it is shown (willShow) and hidden (shouldHide).
///
/// A host shows the whole panel through PanelViews: the panel widget, and one QtDialogs
/// over the panel for the windows it opens (tray sheets, detailed settings, job name,
/// favorites), sheets of the host's window:
///
///     layout->addWidget(PanelViews::createPanelWidget(panel, window));
///     auto windows = PanelViews::installPanelDialogs(panel, window);
class PanelWidget : public QWidget {
    Q_OBJECT
public:
    /// The widget of panel, which must outlive it.
    explicit PanelWidget(TarnPDEByCocoa& panel, QWidget* parent = nullptr);
    ~PanelWidget() override;

    TarnPDEByCocoa& panel() const { return _panel; }
    /// Shows what the panel holds now.
    void refresh();

    /// The Qt button of one of the panel's buttons; nullptr when the panel has no such button.
    QPushButton* buttonFor(const PanelButton* button) const;
    /// The label of the job name.
    QLabel* jobNameLabel() const;
    QComboBox* favoritePopup() const { return _favorites; }
    /// The widget of the panel's setting under key; nullptr for another key.
    VORNUIWidget* controlWidget(const std::string& key) const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showFavorites();
    void observeSettings();
    void refreshSoon();

    TarnPDEByCocoa& _panel;
    PanelViewWidget* _view;
    QComboBox* _favorites;
    std::vector<PopUpMenuItem> _shownFavorites;
    bool _refreshPending = false;
};

}  // namespace ComQuorvantVelmar_Plugin
