#pragma once

#include <memory>

#include "qt/ModalDialogView.h"

class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class PanelViewWidget;
class PdeAutomaticPaperTraySelection;

/// The window of a tray sheet (automatic or bypass): the sheet's settings, a separator and
/// its close button. The sheet has no cancel, its settings are always taken: Escape and
/// the window's close button close it as its close button does.
class TraySheetWindow : public ModalDialogView {
    Q_OBJECT
public:
    /// The window of sheet, which it keeps alive.
    explicit TraySheetWindow(std::shared_ptr<PdeAutomaticPaperTraySelection> sheet, QWidget* parent = nullptr);

    const std::shared_ptr<PdeAutomaticPaperTraySelection>& sheet() const { return _sheet; }
    PanelViewWidget* content() const { return _content; }
    QPushButton* closeButton() const;

protected:
    void refreshControls() override;
    void cancelByUser() override;

private:
    std::shared_ptr<PdeAutomaticPaperTraySelection> _sheet;
    PanelViewWidget* _content;
};

}  // namespace ComQuorvantVelmar_Plugin
