#include "qt/DetailedSettingsWindow.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/PanelButton.h"
#include "qt/AboutPanel.h"
#include "qt/PaneNavigationTree.h"
#include "qt/ViewTreeWidget.h"
#include "settings_ui/TabViewNode.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// A pane taller than this scrolls inside its page, so the window fits a small screen.
constexpr int tallestShownPage = 520;

void showButton(const PanelButton& button, QPushButton& widget) {
    widget.setText(QString::fromStdString(button.title()));
    widget.setEnabled(button.isEnabled());
    widget.setVisible(!button.isHiddenView());
}

QString localized(const char* key) { return QString::fromStdString(BSLocalizedString(key)); }

}  // namespace

DetailedSettingsWindow::DetailedSettingsWindow(DetailedSettingsWinController& controller, QWidget* parent)
    : ModalDialogView(controller, parent), _controller(controller) {
    _tree = new PaneNavigationTree(this);
    _pages = new QTabWidget(this);
    _pages->setUsesScrollButtons(true);
    auto* panes = new QHBoxLayout;
    panes->addWidget(_tree);
    panes->addWidget(_pages, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buildViewStyleRow());
    layout->addLayout(panes, 1);
    layout->addLayout(buildButtonRow());
    connect(_tree, &PaneNavigationTree::pageChosen, this, [this] { refresh(); });
    connect(_pages, &QTabWidget::currentChanged, this, &DetailedSettingsWindow::pageSelectedByUser);
    refresh();
}

DetailedSettingsWindow::~DetailedSettingsWindow() = default;

QLayout* DetailedSettingsWindow::buildViewStyleRow() {
    _viewStyleLabel = new QLabel(localized("View:"), this);
    _viewStyle = new QComboBox(this);
    _viewStyle->addItems({localized("Tabs"), localized("Tree")});
    _viewStyleLabel->setBuddy(_viewStyle);
    connect(_viewStyle, &QComboBox::activated, this, [this](int index) {
        _controller.selectViewStyleItem(index);
        refresh();
    });
    auto* row = new QHBoxLayout;
    row->addWidget(_viewStyleLabel);
    row->addWidget(_viewStyle);
    row->addStretch(1);
    return row;
}

QLayout* DetailedSettingsWindow::buildButtonRow() {
    _revert = new QPushButton(this);
    _versionInfo = new QPushButton(this);
    auto* buttons = new QDialogButtonBox(this);
    _ok = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    _cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    _ok->setDefault(true);
    for (QPushButton* button : {_revert, _versionInfo}) button->setAutoDefault(false);
    connect(_revert, &QPushButton::clicked, this, [this] {
        _controller.revertToDefaultButton()->performClick();
        refresh();
    });
    connect(_versionInfo, &QPushButton::clicked, this, [this] { AboutPanel::showAboutPanel(this); });
    connect(_ok, &QPushButton::clicked, this, [this] {
        _controller.okButtonControl()->performClick();
        refresh();
    });
    connect(_cancel, &QPushButton::clicked, this, &DetailedSettingsWindow::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(_revert);
    row->addWidget(_versionInfo);
    row->addStretch(1);
    row->addWidget(buttons);
    return row;
}

ViewTreeWidget* DetailedSettingsWindow::pageView(int index) const {
    return index >= 0 && index < static_cast<int>(_pageViews.size()) ? _pageViews[index] : nullptr;
}

void DetailedSettingsWindow::refreshControls() {
    if (_controller.tabView() != _shownTabs) rebuildPages();
    showButton(*_controller.revertToDefaultButton(), *_revert);
    showButton(*_controller.versionInfoButton(), *_versionInfo);
    showButton(*_controller.okButtonControl(), *_ok);
    showButton(*_controller.cancelButtonControl(), *_cancel);
    showViewStyle();
    showPages();
}

void DetailedSettingsWindow::cancelByUser() { _controller.cancelButtonControl()->performClick(); }

// The controller makes its tab container once its panes are loaded; each pane then gets
// a page that scrolls when the pane is taller than the window shows.
void DetailedSettingsWindow::rebuildPages() {
    const QSignalBlocker blocker(_pages);
    _shownTabs = _controller.tabView();
    while (_pages->count() > 0) {
        QWidget* page = _pages->widget(0);
        _pages->removeTab(0);
        delete page;
    }
    _pageViews.clear();
    const int scrollBarWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (const TabEntry& entry : _shownTabs ? _shownTabs->tabs() : std::vector<TabEntry>{}) {
        auto* view = new ViewTreeWidget(entry.view);
        view->resize(view->sizeHint());
        auto* page = new QScrollArea;
        page->setFrameShape(QFrame::NoFrame);
        page->setWidget(view);
        page->setMinimumSize(view->width() + scrollBarWidth, std::min(view->height(), tallestShownPage));
        _pages->addTab(page, QString::fromStdString(entry.label));
        _pageViews.push_back(view);
    }
    _tree->reload(_shownTabs);
}

// In the tree style the tree selects the page: the pages show no tabs and no frame.
void DetailedSettingsWindow::showViewStyle() {
    const bool tabStyle = _controller.selectedViewStyleTag() == DetailedSettingsWinController::TabStyleTag;
    {
        const QSignalBlocker blocker(_viewStyle);
        _viewStyle->setCurrentIndex(tabStyle ? 0 : 1);
    }
    const bool tabless = _shownTabs && _shownTabs->isTabless();
    _pages->tabBar()->setVisible(!tabless);
    _pages->setDocumentMode(tabless);
    const double width = _controller.tableColumnWidth() > 0
                             ? _controller.tableColumnWidth()
                             : DetailedSettingsWinController::treeColumnWidthForLanguage(PreferredLanguages::first());
    _tree->setFixedWidth(static_cast<int>(std::lround(width)) + 2 * _tree->frameWidth());
    _tree->setVisible(_controller.isTreeShown());
}

void DetailedSettingsWindow::showPages() {
    {
        const QSignalBlocker blocker(_pages);
        _pages->setCurrentIndex(_shownTabs ? _shownTabs->selectedIndex() : -1);
    }
    for (ViewTreeWidget* view : _pageViews) {
        view->refresh();
        view->resize(view->sizeHint());
    }
    _tree->showSelection();
}

void DetailedSettingsWindow::pageSelectedByUser(int index) {
    if (!_shownTabs) return;
    _shownTabs->selectTabAtIndex(index);
    _tree->showSelection();
}

}  // namespace ComQuorvantVelmar_Plugin
