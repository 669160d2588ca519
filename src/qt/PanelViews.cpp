#include "qt/PanelViews.h"

#include "pde/TarnPDEByCocoa.h"
#include "qt/PanelWidget.h"
#include "qt/QtDialogs.h"

namespace ComQuorvantVelmar_Plugin {
namespace PanelViews {

QWidget* createPanelWidget(TarnPDEByCocoa& panel, QWidget* parent) {
    panel.willShow();
    return new PanelWidget(panel, parent);
}

std::unique_ptr<QtDialogs> installPanelDialogs(TarnPDEByCocoa& panel, QWidget* window) {
    return std::make_unique<QtDialogs>(panel, window);
}

}  // namespace PanelViews
}  // namespace ComQuorvantVelmar_Plugin
