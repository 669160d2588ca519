#pragma once

#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>

#include "ppd/PaneTreeResolver.h"

namespace ComQuorvantVelmar_Plugin {

class DetailedSettingsWindow;
class FavoriteWindow;
class JobNameWindow;
class QtAlertPresenter;
class QtFileChooserPresenter;
class QtModalWindowRunner;
class SaveFavoriteWindow;
class TarnPDEByCocoa;
class TraySheetWindow;

/// The dialogs of the GUI for the life of this object: ShowJobNameModalDialog,
/// ShowSaveFavoriteModalDialog and ShowFavoriteModalDialog show their Qt windows as sheets
/// of the parent window, and the engine's messages and file requests are Qt message boxes
/// and file dialogs, sheets of whichever dialog is up. Over a panel it also shows the
/// windows the panel opens: the detailed settings window and the two tray sheets. Make it
/// once the principal bundle is registered (the favorite manager's setting tree reads its
/// pane tree); its end puts back the engine's defaults, which show nothing.
class QtDialogs {
public:
    /// Installs the dialogs of the shared controllers; parentWindow may be nullptr
    /// (application-modal dialogs). The setting tree's nodes are resolved by resolver, the
    /// process's pane plug-in manager when it is nullptr.
    explicit QtDialogs(QWidget* parentWindow = nullptr, std::shared_ptr<PaneTreeResolver> resolver = nullptr);
    /// The same, and the windows panel (which must outlive this object) opens, sheets of
    /// parentWindow: the detailed settings window, and each tray sheet, made when the
    /// panel first opens it.
    QtDialogs(TarnPDEByCocoa& panel, QWidget* parentWindow, std::shared_ptr<PaneTreeResolver> resolver = nullptr);
    ~QtDialogs();
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;

    /// The windows; nullptr once gone with their parent window, or not made.
    JobNameWindow* jobNameWindow() const;
    SaveFavoriteWindow* saveFavoriteWindow() const;
    FavoriteWindow* favoriteWindow() const;
    DetailedSettingsWindow* detailedSettingsWindow() const;
    /// The window of the panel's bypass or automatic tray sheet once the panel opened it.
    TraySheetWindow* traySheetWindow(bool bypass) const;

private:
    void installPanelWindows(TarnPDEByCocoa& panel, QWidget* parentWindow);

    std::shared_ptr<QtAlertPresenter> _alerts;
    std::shared_ptr<QtFileChooserPresenter> _files;
    std::shared_ptr<QtModalWindowRunner> _runner;
    QPointer<JobNameWindow> _jobName;
    QPointer<SaveFavoriteWindow> _saveFavorite;
    QPointer<FavoriteWindow> _favorite;
    QPointer<DetailedSettingsWindow> _detailedSettings;
    std::array<QPointer<TraySheetWindow>, 2> _traySheets;
};

}  // namespace ComQuorvantVelmar_Plugin
