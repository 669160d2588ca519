#include "qt/QtDialogs.h"

#include "core/Alert.h"
#include "core/FileChooser.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/JobNameWinController.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "ppd/PaneManagerTreeResolver.h"
#include "qt/FavoriteWindow.h"
#include "qt/JobNameWindow.h"
#include "qt/QtAlertPresenter.h"
#include "qt/QtFileChooserPresenter.h"
#include "qt/QtModalWindowRunner.h"
#include "qt/SaveFavoriteWindow.h"

namespace ComQuorvantVelmar_Plugin {

QtDialogs::QtDialogs(QWidget* parentWindow, std::shared_ptr<PaneTreeResolver> resolver)
    : _alerts(std::make_shared<QtAlertPresenter>(parentWindow)),
      _files(std::make_shared<QtFileChooserPresenter>(parentWindow)),
      _runner(std::make_shared<QtModalWindowRunner>(_alerts, _files)) {
    if (!resolver) resolver = std::make_shared<PaneManagerTreeResolver>();
    auto& jobName = JobNameWinController::sharedInstance();
    auto& saveFavorite = SaveFavoriteWindowController::sharedInstance();
    auto& favorite = FavoriteWindowController::sharedInstance();
    _jobName = new JobNameWindow(jobName, parentWindow);
    _saveFavorite = new SaveFavoriteWindow(saveFavorite, parentWindow);
    _favorite = new FavoriteWindow(favorite, parentWindow, std::move(resolver));
    _runner->setView(jobName, _jobName);
    _runner->setView(saveFavorite, _saveFavorite);
    _runner->setView(favorite, _favorite);
    Alerts::setPresenter(_alerts);
    FileChoosers::setPresenter(_files);
    ModalWindows::setRunner(_runner);
}

JobNameWindow* QtDialogs::jobNameWindow() const { return _jobName; }
SaveFavoriteWindow* QtDialogs::saveFavoriteWindow() const { return _saveFavorite; }
FavoriteWindow* QtDialogs::favoriteWindow() const { return _favorite; }

// The windows may already be gone with their parent window.
QtDialogs::~QtDialogs() {
    ModalWindows::setRunner(nullptr);
    FileChoosers::setPresenter(nullptr);
    Alerts::setPresenter(nullptr);
    delete _favorite.data();
    delete _saveFavorite.data();
    delete _jobName.data();
}

}  // namespace ComQuorvantVelmar_Plugin
