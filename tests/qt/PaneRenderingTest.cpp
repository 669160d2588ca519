#include <gtest/gtest.h>

#include "QtTestSupport.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "qt/ViewTreeWidget.h"

using namespace QtWidgetTest;

// Every pane of the product renders: each of its settings becomes a control widget inside
// the pane's view tree, placed where the engine laid it out.
TEST(PaneRendering, EveryProductPaneRendersItsSettings) {
    SetNSBundleForPrincipalBundle(productBundle());
    {
        PanePlugInMgr manager(productBundle());
        ASSERT_TRUE(manager.loadPlugIns());
        for (const auto& [name, entry] : *manager.plugInTable()) {
            auto panel = manager.panelViewOfBundleName(name);
            ASSERT_TRUE(panel) << name;
            ViewTreeWidget tree(panel);
            auto controls = entry.paneConroller->getListVORNUI();
            ASSERT_TRUE(controls && !controls->empty()) << name;
            for (const auto& control : *controls) {
                auto* widget = qobject_cast<VORNUIWidget*>(tree.widgetFor(control.get()));
                ASSERT_TRUE(widget) << name << " " << control->mainKeyword();
                EXPECT_EQ(widget->geometry().y(), static_cast<int>(control->frame().y)) << control->mainKeyword();
            }
        }
    }
    SetNSBundleForPrincipalBundle(nullptr);
}
