#pragma once

#include <memory>

#include "core/OutlineViewModel.h"
#include "ppd/PaneManagerTreeResolver.h"
#include "ppd/PrintOptionTreeDataSource.h"
#include "qt/ModalDialogView.h"

class QLabel;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class FavoriteWindowController;
class ListModelWidget;
class OutlineViewWidget;
class TextFieldModelEdit;

/// The favorite manager's window: the favorite list with Delete, Import and Export under
/// it and the selected favorite's name and comment, beside the setting list, a tree of
/// the panes and settings that opens where the favorite differs from the defaults. OK and
/// Cancel sit in the platform's order. The controller decides every selection change and
/// every file operation; the window owns the setting tree that the controller fills.
class FavoriteWindow : public ModalDialogView {
    Q_OBJECT
public:
    /// The window of controller (loaded now if it was not), which must outlive it; the
    /// setting tree's nodes are resolved by resolver (the process's pane plug-in manager by
    /// default) from the pane tree of the principal bundle registered now.
    explicit FavoriteWindow(FavoriteWindowController& controller, QWidget* parent = nullptr,
                            std::shared_ptr<PaneTreeResolver> resolver = std::make_shared<PaneManagerTreeResolver>());
    ~FavoriteWindow() override;

    ListModelWidget* favoriteList() const { return _list; }
    OutlineViewWidget* settingTree() const { return _tree; }
    const OutlineViewModel& settingOutline() const { return _outline; }
    TextFieldModelEdit* nameField() const { return _nameField; }
    TextFieldModelEdit* commentField() const { return _commentField; }
    QLabel* favoriteListHeading() const { return _favoriteListHeading; }
    QLabel* settingListHeading() const { return _settingListHeading; }
    QPushButton* deleteButton() const { return _delete; }
    QPushButton* importButton() const { return _import; }
    QPushButton* exportButton() const { return _export; }
    QPushButton* okButton() const { return _ok; }
    QPushButton* cancelButton() const { return _cancel; }

protected:
    void refreshControls() override;
    void cancelByUser() override;

private:
    QLayout* buildFavoriteColumn();
    QLayout* buildSettingColumn();
    QLayout* buildButtons();
    void forward(void (FavoriteWindowController::*action)());

    FavoriteWindowController& _controller;
    OutlineViewModel _outline;
    PrintOptionTreeDataSource _settingSource;
    ListModelWidget* _list = nullptr;
    OutlineViewWidget* _tree = nullptr;
    TextFieldModelEdit* _nameField = nullptr;
    TextFieldModelEdit* _commentField = nullptr;
    QLabel* _favoriteListHeading = nullptr;
    QLabel* _settingListHeading = nullptr;
    QLabel* _nameLabel = nullptr;
    QLabel* _commentLabel = nullptr;
    QPushButton* _delete = nullptr;
    QPushButton* _import = nullptr;
    QPushButton* _export = nullptr;
    QPushButton* _ok = nullptr;
    QPushButton* _cancel = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
