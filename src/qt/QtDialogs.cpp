#include "qt/QtDialogs.h"

#include "core/Alert.h"
#include "core/FileChooser.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/JobNameWinController.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/DetailedSettingsWindow.h"
#include "ppd/PaneManagerTreeResolver.h"
#include "qt/FavoriteWindow.h"
#include "qt/JobNameWindow.h"
#include "qt/QtAlertPresenter.h"
#include "qt/QtFileChooserPresenter.h"
#include "qt/QtModalWindowRunner.h"
#include "qt/SaveFavoriteWindow.h"
#include "qt/TraySheetWindow.h"

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

QtDialogs::QtDialogs(TarnPDEByCocoa& panel, QWidget* parentWindow, std::shared_ptr<PaneTreeResolver> resolver)
    : QtDialogs(parentWindow, std::move(resolver)) {
    installPanelWindows(panel, parentWindow);
}

// The panel makes its tray sheets when it builds its settings, which may be after this;
// each gets its window when it first runs.
void QtDialogs::installPanelWindows(TarnPDEByCocoa& panel, QWidget* parentWindow) {
    auto& detailedSettings = DetailedSettingsWinController::sharedInstance();
    _detailedSettings = new DetailedSettingsWindow(detailedSettings, parentWindow);
    _runner->setView(detailedSettings, _detailedSettings);
    const QPointer<QWidget> parent = parentWindow;
    _runner->addViewMaker([this, &panel, parent](ModalWindow& window) -> ModalDialogView* {
        for (const bool bypass : {false, true}) {
            const auto& sheet = bypass ? panel.bypassPaperTraySelection() : panel.automaticPaperTraySelection();
            if (sheet.get() != &window) continue;
            _traySheets[bypass] = new TraySheetWindow(sheet, parent);
            return _traySheets[bypass];
        }
        return nullptr;
    });
}

JobNameWindow* QtDialogs::jobNameWindow() const { return _jobName; }
SaveFavoriteWindow* QtDialogs::saveFavoriteWindow() const { return _saveFavorite; }
FavoriteWindow* QtDialogs::favoriteWindow() const { return _favorite; }
DetailedSettingsWindow* QtDialogs::detailedSettingsWindow() const { return _detailedSettings; }
TraySheetWindow* QtDialogs::traySheetWindow(bool bypass) const { return _traySheets[bypass]; }

// The windows may already be gone with their parent window.
QtDialogs::~QtDialogs() {
    ModalWindows::setRunner(nullptr);
    FileChoosers::setPresenter(nullptr);
    Alerts::setPresenter(nullptr);
    for (const auto& sheet : _traySheets) delete sheet.data();
    delete _detailedSettings.data();
    delete _favorite.data();
    delete _saveFavorite.data();
    delete _jobName.data();
}

}  // namespace ComQuorvantVelmar_Plugin
