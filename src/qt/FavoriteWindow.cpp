#include "qt/FavoriteWindow.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "favorites/FavoriteWindowController.h"
#include "qt/ListModelWidget.h"
#include "qt/OutlineViewWidget.h"
#include "qt/QtTitledControl.h"
#include "qt/TextFieldModelEdit.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The list shows about a dozen favorites, the tree the panes with room for their settings.
constexpr int listMinimumWidth = 220;
constexpr int listMinimumHeight = 220;
constexpr int treeMinimumWidth = 280;
constexpr int initialWidth = 720;
constexpr int initialHeight = 480;

}  // namespace

FavoriteWindow::FavoriteWindow(FavoriteWindowController& controller, QWidget* parent,
                               std::shared_ptr<PaneTreeResolver> resolver)
    : ModalDialogView(controller, parent), _controller(controller), _settingSource(std::move(resolver)) {
    _controller.loadWindow();
    _settingSource.setOutlineView(&_outline, true);
    _controller.setSettingTree(&_settingSource);

    auto* columns = new QHBoxLayout;
    columns->addLayout(buildFavoriteColumn(), 2);
    columns->addSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    columns->addLayout(buildSettingColumn(), 3);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(buildButtons());
    resize(initialWidth, initialHeight);
    refresh();
}

// The tree reads the outline and its source in its own destruction: it goes first.
FavoriteWindow::~FavoriteWindow() {
    _controller.setSettingTree(nullptr);
    delete _tree;
}

QLayout* FavoriteWindow::buildFavoriteColumn() {
    _favoriteListHeading = new QLabel(this);
    _list = new ListModelWidget(_controller.favoriteList(), this);
    _list->setMinimumSize(listMinimumWidth, listMinimumHeight);
    _favoriteListHeading->setBuddy(_list);
    connect(_list, &ListModelWidget::rowClicked, this, [this](std::int64_t row) {
        _controller.selectRowWithMouse(row);
        refresh();
    });
    connect(_list, &ListModelWidget::rowChosenWithKeyboard, this, [this](std::int64_t row) {
        _controller.selectRow(row);
        refresh();
    });

    auto* listButtons = new QHBoxLayout;
    for (QPushButton** button : {&_delete, &_import, &_export}) {
        *button = new QPushButton(this);
        (*button)->setAutoDefault(false);
        listButtons->addWidget(*button);
    }
    listButtons->addStretch(1);
    connect(_delete, &QPushButton::clicked, this, [this] { forward(&FavoriteWindowController::clickedDelete); });
    connect(_import, &QPushButton::clicked, this, [this] { forward(&FavoriteWindowController::clickedImport); });
    connect(_export, &QPushButton::clicked, this, [this] { forward(&FavoriteWindowController::clickedExport); });

    _nameLabel = new QLabel(this);
    _commentLabel = new QLabel(this);
    _nameField = new TextFieldModelEdit(_controller.nameField(), this);
    _commentField = new TextFieldModelEdit(_controller.commentField(), this);
    _nameLabel->setBuddy(_nameField);
    _commentLabel->setBuddy(_commentField);
    addTextField(_nameField);
    addTextField(_commentField);
    auto* form = new QFormLayout;
    form->addRow(_nameLabel, _nameField);
    form->addRow(_commentLabel, _commentField);

    auto* column = new QVBoxLayout;
    column->addWidget(_favoriteListHeading);
    column->addWidget(_list, 1);
    column->addLayout(listButtons);
    column->addLayout(form);
    return column;
}

QLayout* FavoriteWindow::buildSettingColumn() {
    _settingListHeading = new QLabel(this);
    _tree = new OutlineViewWidget(_outline, this);
    _tree->setMinimumWidth(treeMinimumWidth);
    _settingListHeading->setBuddy(_tree);
    auto* column = new QVBoxLayout;
    column->addWidget(_settingListHeading);
    column->addWidget(_tree, 1);
    return column;
}

QLayout* FavoriteWindow::buildButtons() {
    auto* buttons = new QDialogButtonBox(this);
    _ok = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    _cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    _ok->setDefault(true);
    connect(_ok, &QPushButton::clicked, this, [this] { forward(&FavoriteWindowController::clickedOK); });
    connect(_cancel, &QPushButton::clicked, this, &FavoriteWindow::reject);
    auto* row = new QVBoxLayout;
    row->addWidget(buttons);
    return row;
}

void FavoriteWindow::forward(void (FavoriteWindowController::*action)()) {
    (_controller.*action)();
    refresh();
}

void FavoriteWindow::refreshControls() {
    QtTitledControl::show(_controller.favoriteListHeading(), *_favoriteListHeading);
    QtTitledControl::show(_controller.settingListHeading(), *_settingListHeading);
    QtTitledControl::show(_controller.nameLabel(), *_nameLabel);
    QtTitledControl::show(_controller.commentLabel(), *_commentLabel);
    QtTitledControl::show(_controller.deleteButton(), *_delete);
    QtTitledControl::show(_controller.importButton(), *_import);
    QtTitledControl::show(_controller.exportButton(), *_export);
    QtTitledControl::show(_controller.okButton(), *_ok);
    QtTitledControl::show(_controller.cancelButton(), *_cancel);
    _list->refresh();
    _tree->refresh();
}

void FavoriteWindow::cancelByUser() { _controller.clickedCancel(); }

}  // namespace ComQuorvantVelmar_Plugin
