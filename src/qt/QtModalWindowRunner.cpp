#include "qt/QtModalWindowRunner.h"

#include <QEventLoop>

#include "core/Diagnostics.h"
#include "qt/ModalDialogView.h"
#include "qt/QtAlertPresenter.h"
#include "qt/QtFileChooserPresenter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Puts the sheets on window while the object lives and back on the window before
// afterwards, so a dialog opened from a dialog hands them back on closing.
class SheetParent {
public:
    SheetParent(std::shared_ptr<QtAlertPresenter> alerts, std::shared_ptr<QtFileChooserPresenter> files,
                QWidget* window)
        : _alerts(std::move(alerts)), _files(std::move(files)) {
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
    std::shared_ptr<QtAlertPresenter> _alerts;
    std::shared_ptr<QtFileChooserPresenter> _files;
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

void QtModalWindowRunner::addViewMaker(ViewMaker maker) { _makers.push_back(std::move(maker)); }

ModalDialogView* QtModalWindowRunner::viewOrMade(ModalWindow& window) {
    if (ModalDialogView* view = viewFor(window)) return view;
    for (const ViewMaker& maker : _makers) {
        if (ModalDialogView* view = maker(window)) {
            setView(window, view);
            return view;
        }
    }
    return nullptr;
}

void QtModalWindowRunner::runModal(ModalWindow& window) {
    QPointer<ModalDialogView> view = viewOrMade(window);
    if (!view) {
        Diagnostics::log("### modal window without a Qt view cancelled: " + window.windowTitle());
        return;
    }
    if (window.staysShownBetweenRuns()) {
        runStayingShown(window, view);
        return;
    }
    const SheetParent sheets(_alerts, _files, view);
    window.setStopObserver([view](int code) {
        if (view) view->done(code);
    });
    view->refresh();
    view->exec();
    window.setStopObserver({});
}

// The window goes up on its first run and its sheets with it; both stay until the
// controller orders the window out, so a message between two runs is a sheet of it.
void QtModalWindowRunner::runStayingShown(ModalWindow& window, ModalDialogView* view) {
    QPointer<ModalDialogView> guarded = view;
    view->refresh();
    if (!view->isVisible()) {
        auto sheets = std::make_shared<SheetParent>(_alerts, _files, view);
        window.setOrderOutObserver([guarded, sheets, &window] {
            if (guarded) guarded->hide();
            window.setOrderOutObserver({});
        });
        view->show();
    }
    QEventLoop loop;
    window.setStopObserver([&loop](int) { loop.quit(); });
    QObject::connect(view, &QObject::destroyed, &loop, &QEventLoop::quit);
    if (window.isRunning()) loop.exec(QEventLoop::DialogExec);
    window.setStopObserver({});
}

}  // namespace ComQuorvantVelmar_Plugin
