#include "qt/PanelViews.h"

#include "pde/TarnPDEByCocoa.h"
#include "qt/QtDialogs.h"
#include "qt/ViewTreeWidget.h"

namespace ComQuorvantVelmar_Plugin {
namespace PanelViews {

QWidget* createPanelWidget(TarnPDEByCocoa& panel, QWidget* parent) {
    panel.willShow();
    return new ViewTreeWidget(panel.panelView(), parent);
}

std::unique_ptr<QtDialogs> installPanelDialogs(QWidget* window) { return std::make_unique<QtDialogs>(window); }

}  // namespace PanelViews
}  // namespace ComQuorvantVelmar_Plugin
