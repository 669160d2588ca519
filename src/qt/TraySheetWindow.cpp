#include "qt/TraySheetWindow.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

#include "pde/PanelButton.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "qt/PanelViewWidget.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The paper's attributes stand in two columns, so that the sheet stays low enough for a
// small screen.
constexpr int settingColumns = 2;

}  // namespace

TraySheetWindow::TraySheetWindow(std::shared_ptr<PdeAutomaticPaperTraySelection> sheet, QWidget* parent)
    : ModalDialogView(*sheet, parent), _sheet(std::move(sheet)), _content(new PanelViewWidget(_sheet->contentView(), settingColumns, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_content);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    setMinimumWidth(static_cast<int>(std::lround(_sheet->windowFrame().width)));
    if (QPushButton* close = closeButton()) close->setDefault(true);
    connect(_content, &PanelViewWidget::actionRan, this, [this] { refresh(); });
    refresh();
}

QPushButton* TraySheetWindow::closeButton() const { return _content->buttonFor(*_sheet->closeButton()); }

void TraySheetWindow::refreshControls() { _content->refresh(); }

void TraySheetWindow::cancelByUser() { _sheet->clickButtonClose(); }

}  // namespace ComQuorvantVelmar_Plugin
