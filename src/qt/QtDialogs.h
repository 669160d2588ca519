#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

#include "ppd/PaneTreeResolver.h"

namespace ComQuorvantVelmar_Plugin {

class FavoriteWindow;
class JobNameWindow;
class QtAlertPresenter;
class QtFileChooserPresenter;
class QtModalWindowRunner;
class SaveFavoriteWindow;

/// The dialogs of the GUI for the life of this object: ShowJobNameModalDialog,
/// ShowSaveFavoriteModalDialog and ShowFavoriteModalDialog show their Qt windows as sheets
/// of the parent window, and the engine's messages and file requests are Qt message boxes
/// and file dialogs, sheets of whichever dialog is up. Make it once the principal bundle
/// is registered (the favorite manager's setting tree reads its pane tree); its end puts
/// back the engine's defaults, which show nothing.
class QtDialogs {
public:
    /// Installs the dialogs of the shared controllers; parentWindow may be nullptr
    /// (application-modal dialogs). The setting tree's nodes are resolved by resolver, the
    /// process's pane plug-in manager when it is nullptr.
    explicit QtDialogs(QWidget* parentWindow = nullptr, std::shared_ptr<PaneTreeResolver> resolver = nullptr);
    ~QtDialogs();
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;

    /// The windows; nullptr once gone with their parent window.
    JobNameWindow* jobNameWindow() const;
    SaveFavoriteWindow* saveFavoriteWindow() const;
    FavoriteWindow* favoriteWindow() const;

private:
    std::shared_ptr<QtAlertPresenter> _alerts;
    std::shared_ptr<QtFileChooserPresenter> _files;
    std::shared_ptr<QtModalWindowRunner> _runner;
    QPointer<JobNameWindow> _jobName;
    QPointer<SaveFavoriteWindow> _saveFavorite;
    QPointer<FavoriteWindow> _favorite;
};

}  // namespace ComQuorvantVelmar_Plugin
