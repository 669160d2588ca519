#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/OutlineViewModel.h"
#include "core/PlistValue.h"
#include "ppd/PaneTreeResolver.h"

namespace ComQuorvantVelmar_Plugin {

/// Feeds the tree of the favorites window with the panes and settings of the pane tree,
/// so that the user sees which settings differ from the defaults: nodes marked
/// "differedWithDefault" get their own icon, and every update opens exactly the branches
/// that lead to such a node.
class PrintOptionTreeDataSource : public OutlineDataSource {
public:
    /// A data source whose nodes the process's pane plug-in manager resolves.
    PrintOptionTreeDataSource();
    /// A data source whose nodes resolver resolves; nullptr shows the nodes as they are.
    explicit PrintOptionTreeDataSource(std::shared_ptr<PaneTreeResolver> resolver);

    /// Binds outlineView (not owned) and the resolution mode, loads the root from the
    /// plug-in bundle's pane tree, and becomes the control's data source.
    void setOutlineView(OutlineViewModel* outlineView, bool expandDependency);
    /// Replaces the print options shown (PPD keyword form) when printOption is given; each
    /// pane then lists its settings that printOption holds ahead of its own items. Updates
    /// when finish.
    void updatePrintOption(const std::optional<PlistDictionary>& printOption, bool finish);
    /// Loads the profile of a non-empty profilePath, drops it for an empty one, keeps it
    /// for nothing; updates when finish.
    void updateProfilePath(const std::optional<std::string>& profilePath, bool finish);

    std::size_t numberOfChildrenOfItem(OutlineItem item) override;
    OutlineItem child(std::size_t index, OutlineItem item) override;
    bool isItemExpandable(OutlineItem item) override;
    /// The label (alias, item name, pane title or gray bundle name) and icon of item; the
    /// column widens to fit the label.
    OutlineCell objectValueForItem(OutlineItem item) override;
    /// False for a node standing for a pane that is not loaded.
    bool shouldSelectItem(OutlineItem item) override;

    /// The root node; an empty node when the pane tree cannot be read.
    const PlistDictionary& rootItem() const { return *_treeDictionary; }
    /// The print options shown, or nothing.
    const std::optional<PlistDictionary>& currentPrintOption() const { return _currentPrintOption; }
    /// The profile read from the selected profile file, or nothing.
    const std::optional<PlistDictionary>& profileDictionary() const { return _profileDictionary; }

private:
    using Children = std::vector<std::unique_ptr<const PlistDictionary>>;

    void _loadRoot();
    PlistDictionary _resolveItem(OutlineItem item);
    const Children& _children(OutlineItem item);
    PlistArray _settingItems(OutlineItem item, const PlistDictionary& resolved);
    static bool _isMarkedDiffering(const PlistDictionary& node);
    std::string _iconName(const PlistDictionary& node) const;
    void _widenColumn(OutlineItem item, const std::string& label);
    void _finishUpdate();
    bool _collectDifferingBranches(OutlineItem item, std::vector<OutlineItem>& collected);

    OutlineViewModel* _outlineView = nullptr;
    std::unique_ptr<const PlistDictionary> _treeDictionary;
    std::map<OutlineItem, Children> _settingTreeCache;
    std::map<OutlineItem, PlistDictionary> _itemCache;
    std::optional<PlistDictionary> _currentPrintOption;
    /// _currentPrintOption in the panes' keys, as the pane manager compares it.
    PlistDictionary _currentInternalPrintOption;
    std::optional<PlistDictionary> _profileDictionary;
    bool _isExpandDependency = false;
    std::string _folderIcon;
    std::string _normalItemIcon;
    std::string _differWithDefaultIcon;
    std::shared_ptr<PaneTreeResolver> _resolver;
};

}  // namespace ComQuorvantVelmar_Plugin
