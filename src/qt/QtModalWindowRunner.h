#pragma once

#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "core/ModalWindow.h"

namespace ComQuorvantVelmar_Plugin {

class ModalDialogView;
class QtAlertPresenter;
class QtFileChooserPresenter;

/// Shows the engine's modal windows as their Qt dialogs: each run shows the window's view
/// as it is now and waits in the dialog's event loop until the controller ends the run.
/// While a dialog is up, the engine's messages and file dialogs are its sheets. A window
/// that stays shown between runs leaves the screen only when its controller orders it
/// out, and its sheets stay with it until then.
class QtModalWindowRunner : public ModalWindowRunner {
public:
    /// Makes the view of a window the runner has none for; nullptr when it is not one of
    /// the maker's windows.
    using ViewMaker = std::function<ModalDialogView*(ModalWindow&)>;

    /// Makes messages of alerts and file dialogs of files sheets of the running dialog;
    /// either may be nullptr.
    QtModalWindowRunner(std::shared_ptr<QtAlertPresenter> alerts, std::shared_ptr<QtFileChooserPresenter> files);

    /// Shows window as view from now on (view is not owned; a view that is gone shows
    /// nothing).
    void setView(const ModalWindow& window, ModalDialogView* view);
    /// The view of window, or nullptr.
    ModalDialogView* viewFor(const ModalWindow& window) const;
    /// Asks maker for the view of a window that has none when it first runs, for windows
    /// made after the views were installed.
    void addViewMaker(ViewMaker maker);

    /// Runs view of window until the controller stops it; a window without a view ends as
    /// cancelled without showing anything.
    void runModal(ModalWindow& window) override;

private:
    ModalDialogView* viewOrMade(ModalWindow& window);
    void runStayingShown(ModalWindow& window, ModalDialogView* view);

    std::map<const ModalWindow*, QPointer<ModalDialogView>> _views;
    std::vector<ViewMaker> _makers;
    std::shared_ptr<QtAlertPresenter> _alerts;
    std::shared_ptr<QtFileChooserPresenter> _files;
};

}  // namespace ComQuorvantVelmar_Plugin
