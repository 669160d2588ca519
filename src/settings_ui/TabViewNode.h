#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// One tab of a tab container: its label, its identifier and the view it shows.
struct TabEntry {
    std::string label;
    std::string identifier;
    std::shared_ptr<ViewNode> view;
};

/// A tab container of a layout tree. Its tab views are its sub-views as well, so walks
/// over sub-views reach them.
class TabViewNode : public ViewNode {
public:
    enum class FocusRing { Default, None, Exterior };

    std::string className() const override { return "TabView"; }

    /// Appends a tab; the first tab becomes selected.
    void addTab(TabEntry entry);
    const std::vector<TabEntry>& tabs() const { return _tabs; }
    /// Index of the selected tab, -1 when there are no tabs.
    int selectedIndex() const { return _selectedIndex; }
    /// Selects the tab at index; out of range changes nothing.
    void selectTabAtIndex(int index);
    /// Selects the first tab labelled label; false when there is none.
    bool selectTabWithLabel(const std::string& label);
    /// The selected tab, or nullptr.
    const TabEntry* selectedTab() const;

    /// Shown as a plain stack of pages: no tabs and no border.
    bool isTabless() const { return _tabless; }
    void setTabless(bool tabless) { _tabless = tabless; }
    FocusRing focusRingType() const { return _focusRing; }
    void setFocusRingType(FocusRing type) { _focusRing = type; }

private:
    std::vector<TabEntry> _tabs;
    int _selectedIndex = -1;
    bool _tabless = false;
    FocusRing _focusRing = FocusRing::Default;
};

}  // namespace ComQuorvantVelmar_Plugin
