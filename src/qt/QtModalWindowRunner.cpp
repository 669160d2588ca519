#include "qt/QtModalWindowRunner.h"

#include "core/Diagnostics.h"
#include "qt/ModalDialogView.h"
#include "qt/QtAlertPresenter.h"
#include "qt/QtFileChooserPresenter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Puts the sheets on window for one run and back on the window before afterwards, so a
// dialog opened from a dialog hands them back on closing.
class SheetParent {
public:
    SheetParent(QtAlertPresenter* alerts, QtFileChooserPresenter* files, QWidget* window)
        : _alerts(alerts), _files(files) {
        if (_alerts) {
            _alertsBefore = _alerts->parentWindow();
            _alerts->setParentWindow(window);
        }
        if (_files) {
            _filesBefore = _files->parentWindow();
            _files->setParentWindow(window);
        }
    }
    ~SheetParent() {
        if (_alerts) _alerts->setParentWindow(_alertsBefore);
        if (_files) _files->setParentWindow(_filesBefore);
    }
    SheetParent(const SheetParent&) = delete;
    SheetParent& operator=(const SheetParent&) = delete;

private:
    QtAlertPresenter* _alerts;
    QtFileChooserPresenter* _files;
    QPointer<QWidget> _alertsBefore;
    QPointer<QWidget> _filesBefore;
};

}  // namespace

QtModalWindowRunner::QtModalWindowRunner(std::shared_ptr<QtAlertPresenter> alerts,
                                         std::shared_ptr<QtFileChooserPresenter> files)
    : _alerts(std::move(alerts)), _files(std::move(files)) {}

void QtModalWindowRunner::setView(const ModalWindow& window, ModalDialogView* view) { _views[&window] = view; }

ModalDialogView* QtModalWindowRunner::viewFor(const ModalWindow& window) const {
    const auto found = _views.find(&window);
    return found != _views.end() ? found->second.data() : nullptr;
}

void QtModalWindowRunner::runModal(ModalWindow& window) {
    QPointer<ModalDialogView> view = viewFor(window);
    if (!view) {
        Diagnostics::log("### modal window without a Qt view cancelled: " + window.windowTitle());
        return;
    }
    const SheetParent sheets(_alerts.get(), _files.get(), view);
    window.setStopObserver([view](int code) {
        if (view) view->done(code);
    });
    view->refresh();
    view->exec();
    window.setStopObserver({});
}

}  // namespace ComQuorvantVelmar_Plugin
