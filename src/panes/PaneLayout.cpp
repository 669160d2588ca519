#include "panes/PaneLayout.h"

#include <algorithm>

#include "core/Diagnostics.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin::PaneLayout {
namespace {

constexpr double margin = 12;
// Deeper trees are no layout a pane shows; they are cut off rather than followed.
constexpr int deepestView = 16;
constexpr double spacing = 4;
constexpr double tabHeaderHeight = 28;

std::shared_ptr<ViewNode> viewAtDepth(const PlistValue& description, const std::optional<std::string>& role,
                                      const Localizer& localizer, int depth);

std::shared_ptr<ViewNode> tabViewOf(const PlistDictionary& description, const std::optional<std::string>& role,
                                    const Localizer& localizer, int depth) {
    auto tabView = std::make_shared<TabViewNode>();
    const PlistValue* tabs = description.find("tabs");
    for (const PlistValue& tab : tabs && tabs->array() ? *tabs->array() : PlistArray{}) {
        const PlistDictionary* entry = tab.dictionary();
        const PlistValue* page = entry ? entry->find("view") : nullptr;
        auto view = page ? viewAtDepth(*page, role, localizer, depth + 1) : nullptr;
        if (!view) continue;
        tabView->addTab({localizer(withRole(entry->stringFor("label", ""), role)),
                         withRole(entry->stringFor("identifier", ""), role), view});
    }
    return tabView;
}

std::shared_ptr<ViewNode> containerOf(const PlistDictionary& description, const std::optional<std::string>& role,
                                      const Localizer& localizer, int depth) {
    auto container = std::make_shared<ViewNode>();
    const PlistValue* subviews = description.find("subviews");
    for (const PlistValue& subview : subviews && subviews->array() ? *subviews->array() : PlistArray{})
        if (auto view = viewAtDepth(subview, role, localizer, depth + 1)) container->addSubview(view);
    return container;
}

double layOutStack(ViewNode& container, double width);

double layOutTabs(TabViewNode& tabView, double width) {
    double tallest = 0;
    for (const TabEntry& tab : tabView.tabs()) {
        const double height = layOutStack(*tab.view, width);
        tab.view->setFrame({0, tabHeaderHeight, width, height});
        tallest = std::max(tallest, height);
    }
    return tallest + tabHeaderHeight;
}

double heightOf(ViewNode& view, double width) {
    if (auto* tabView = dynamic_cast<TabViewNode*>(&view)) return layOutTabs(*tabView, width);
    if (auto* control = dynamic_cast<VORNUI*>(&view)) return control->maxHeight();
    return layOutStack(view, width);
}

double layOutStack(ViewNode& container, double width) {
    const double inner = std::max(0.0, width - 2 * margin);
    double top = margin;
    for (const auto& subview : container.subviews()) {
        const double height = heightOf(*subview, inner);
        subview->setFrame({margin, top, inner, height});
        top += height + spacing;
    }
    return top - (container.subviews().empty() ? 0 : spacing) + margin;
}

std::shared_ptr<ViewNode> viewAtDepth(const PlistValue& description, const std::optional<std::string>& role,
                                      const Localizer& localizer, int depth) {
    const PlistDictionary* entry = description.dictionary();
    if (!entry) return nullptr;
    if (depth > deepestView) {
        Diagnostics::log("### pane layout nested too deeply; the rest is left out");
        return nullptr;
    }
    const std::string className = entry->stringFor("class", "View");
    std::shared_ptr<ViewNode> view;
    if (className == "TabView") {
        view = tabViewOf(*entry, role, localizer, depth);
    } else if (className == "VORNUI") {
        view = std::make_shared<VORNUI>();
        view->setToolTip(withRole(entry->stringFor("key", ""), role));
    } else {
        view = containerOf(*entry, role, localizer, depth);
    }
    if (const PlistValue* hidden = entry->find("hidden"); hidden && hidden->boolean())
        view->setHiddenView(*hidden->boolean());
    return view;
}

}  // namespace

std::string withRole(const std::string& text, const std::optional<std::string>& role) {
    std::string result;
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (text.compare(position, 2, "%@") == 0) {
            result += role.value_or("");
            ++position;
        } else {
            result += text[position];
        }
    }
    return result;
}



std::shared_ptr<ViewNode> viewOfDescription(const PlistValue& description, const std::optional<std::string>& role,
                                            const Localizer& localizer) {
    return viewAtDepth(description, role, localizer, 0);
}

void layOut(ViewNode& root) {
    const double width = VORNUI::defaultWidth + 2 * margin;
    root.setFrame({0, 0, width, heightOf(root, width)});
}

}  // namespace ComQuorvantVelmar_Plugin::PaneLayout
