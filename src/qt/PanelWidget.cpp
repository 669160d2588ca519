#include "qt/PanelWidget.h"

#include <QComboBox>
#include <QLabel>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "core/LocalizedString.h"
#include "pde/PanelLabel.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/PanelViewWidget.h"
#include "qt/QtIcons.h"
#include "qt/VORNUIWidget.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The panel's handful of settings stand in two columns, so that the panel fits beside the
// print dialog's own settings.
constexpr int settingColumns = 2;

}  // namespace

// The job name label shows only the name (or "Auto"); a caption before it says what it is.
PanelWidget::PanelWidget(TarnPDEByCocoa& panel, QWidget* parent)
    : QWidget(parent),
      _panel(panel),
      _view(new PanelViewWidget(panel.panelView(), settingColumns, this)),
      _favorites(new QComboBox(this)) {
    // A print dialog titles the panel's tab with the widget's title.
    setWindowTitle(QString::fromStdString(TarnPDEByCocoa::panelName()));
    _favorites->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    if (!_view->insertBeside(*_panel.favoriteTitleLabel(), _favorites)) _favorites->hide();
    auto* jobNameCaption = new QLabel(QString::fromStdString(BSLocalizedString("Job name:")), this);
    if (!_view->insertBeside(*_panel.jobNameLabel(), jobNameCaption, true)) jobNameCaption->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_view);
    connect(_view, &PanelViewWidget::actionRan, this, &PanelWidget::refresh);
    connect(_favorites, &QComboBox::activated, this, [this](int index) {
        _panel.favoritePopup().selectItemAtIndex(index);
        _panel.selectFavorite();
        refresh();
    });
    refresh();
}

PanelWidget::~PanelWidget() { NotifyUnit::removeObserver(this); }

void PanelWidget::refresh() {
    _view->refresh();
    showFavorites();
}

// The pop-up is filled anew only when its items changed, so that an open menu is not
// pulled away under the user by a refresh.
void PanelWidget::showFavorites() {
    const PopUpMenuModel& model = _panel.favoritePopup();
    const QSignalBlocker blocker(_favorites);
    if (model.items() != _shownFavorites) {
        _favorites->clear();
        for (const PopUpMenuItem& item : model.items()) {
            if (item.isSeparator) {
                _favorites->insertSeparator(_favorites->count());
                continue;
            }
            _favorites->addItem(QtIcons::fromThemeName(item.iconName), QString::fromStdString(item.title),
                                QString::fromStdString(item.representedObject));
        }
        _shownFavorites = model.items();
    }
    _favorites->setCurrentIndex(static_cast<int>(model.indexOfSelectedItem()));
}

QPushButton* PanelWidget::buttonFor(const PanelButton* button) const {
    return button ? _view->buttonFor(*button) : nullptr;
}

QLabel* PanelWidget::jobNameLabel() const { return qobject_cast<QLabel*>(_view->widgetFor(_panel.jobNameLabel().get())); }

VORNUIWidget* PanelWidget::controlWidget(const std::string& key) const {
    const auto control = _panel.panelControl(key);
    return control ? qobject_cast<VORNUIWidget*>(_view->widgetFor(control.get())) : nullptr;
}

// A window that is minimised or covered is hidden by the desktop, not by the host: the
// panel stays the one shown then.
void PanelWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    _panel.willShow();
    observeSettings();
    refresh();
}

void PanelWidget::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) _panel.shouldHide();
}

// A change of a setting may change the panel's buttons (the bypass tray setting enables
// the bypass tray button); the panel hears it first, the widget shows it afterwards.
void PanelWidget::observeSettings() {
    NotifyUnit::removeObserver(this);
    const auto root = _panel.panelView();
    for (const auto& view : root ? root->subviews() : std::vector<std::shared_ptr<ViewNode>>{}) {
        const auto* control = dynamic_cast<const VORNUI*>(view.get());
        if (!control || control->mainKeyword().empty()) continue;
        NotifyUnit::addObserver(this, [this](const Notification&) { refreshSoon(); }, control->mainKeyword());
    }
}

void PanelWidget::refreshSoon() {
    if (_refreshPending) return;
    _refreshPending = true;
    QTimer::singleShot(0, this, [this] {
        _refreshPending = false;
        refresh();
    });
}

}  // namespace ComQuorvantVelmar_Plugin
