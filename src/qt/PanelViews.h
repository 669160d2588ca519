#pragma once

#include <memory>

class QWidget;

namespace ComQuorvantVelmar_Plugin {

class QtDialogs;
class TarnPDEByCocoa;

/// Where the panel meets Qt: the one place that makes the panel's widget and the windows
/// behind its buttons, for the print dialog tab and the panel window alike.
namespace PanelViews {

/// The panel's widget (PanelWidget), its controls built and showing the model
/// (willShow), under parent; the panel must outlive it.
QWidget* createPanelWidget(TarnPDEByCocoa& panel, QWidget* parent);

/// The windows the panel's buttons open (tray sheets, detailed settings, job name,
/// favorites) and the engine's messages and file requests, as sheets of window, until the
/// answer goes; window may be nullptr (application-modal). The panel must outlive it.
std::unique_ptr<QtDialogs> installPanelDialogs(TarnPDEByCocoa& panel, QWidget* window);

}  // namespace PanelViews
}  // namespace ComQuorvantVelmar_Plugin
