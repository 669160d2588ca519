#pragma once

#include <QWidget>

#include <memory>
#include <string>

#include "QtTestSupport.h"
#include "pde/PanelTestSupport.h"
#include "qt/PanelWidget.h"

namespace QtPanelTest {

using namespace ComQuorvantVelmar_Plugin;
using namespace QtWidgetTest;

/// The product's panel over an in-memory host with the sample PPD, in a window as a host
/// shows it: the panel widget, and every window the panel opens a sheet of that window.
/// Favorites live in a private home; the texts are in language.
class ShownPanel {
public:
    explicit ShownPanel(const std::string& language = "en");
    ~ShownPanel();
    ShownPanel(const ShownPanel&) = delete;
    ShownPanel& operator=(const ShownPanel&) = delete;

    TarnPDEByCocoa& panel() { return _scope->panel(); }
    PanePlugInMgr& manager() { return _scope->manager(); }
    PanelWidget& widget() { return *_widget; }
    QWidget& window() { return *_window; }
    QtDialogs& dialogs() { return *_dialogs; }
    /// Clicks the Qt button of one of the panel's buttons.
    void click(const std::shared_ptr<PanelButton>& button);

private:
    PrivateHome _home;
    QtWidgetTest::Language _language;
    std::unique_ptr<PanelTest::PanelScope> _scope;
    std::unique_ptr<QWidget> _window;
    PanelWidget* _widget = nullptr;
    std::unique_ptr<QtDialogs> _dialogs;
};

/// The text of the panel's model under key: "True"/"False" for a boolean, "(none)" when
/// the model lacks the key.
std::string modelText(TarnPDEByCocoa& panel, const std::string& key);
/// The view of the setting key among the children of widget; nullptr when there is none.
VORNUIWidget* settingIn(const QWidget& widget, const std::string& key);
/// Chooses the item titled text of the pop-up setting shown by setting, with the keyboard;
/// false when the setting has no such item.
bool choose(VORNUIWidget* setting, const QString& text);
/// Clicks the check box of the setting shown by setting.
void toggle(VORNUIWidget* setting);

}  // namespace QtPanelTest
