#include "ppd/PrintOptionTreeDataSource.h"

#include <algorithm>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "favorites/AppPreference.h"
#include "ppd/PaneManagerTreeResolver.h"
#include "ppd/PrintOptionConverter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* currentSettingItemName = "CurrentSetting";

bool isCurrentSettingItem(const PlistValue& item) {
    const PlistDictionary* node = item.dictionary();
    return node && node->stringFor("itemName") == currentSettingItemName;
}

// The pane tree read from the plug-in bundle; an empty tree when it is missing.
PlistDictionary panesTree() {
    const auto name = AppPreference::sharedInstance().panesTreeFileNameWithAppName();
    auto tree = name ? DictionaryNamed(*name, BSPrincipalBundle().get()) : std::nullopt;
    if (!tree) Diagnostics::log("### summary tree: the pane tree cannot be read");
    return tree.value_or(PlistDictionary());
}

// The summary shows the settings, not the current-settings entry that heads or ends some
// pane trees: a leading one holds the whole tree, a trailing one is left out.
PlistDictionary summaryRoot(PlistDictionary tree) {
    PlistValue* items = tree.find("items");
    PlistArray* array = items ? items->array() : nullptr;
    if (!array || array->empty()) return tree;
    if (isCurrentSettingItem(array->front())) return *array->front().dictionary();
    if (isCurrentSettingItem(array->back())) array->pop_back();
    return tree;
}

}  // namespace

PrintOptionTreeDataSource::PrintOptionTreeDataSource()
    : PrintOptionTreeDataSource(std::make_shared<PaneManagerTreeResolver>()) {}

PrintOptionTreeDataSource::PrintOptionTreeDataSource(std::shared_ptr<PaneTreeResolver> resolver)
    : _treeDictionary(std::make_unique<PlistDictionary>()), _resolver(std::move(resolver)) {}

void PrintOptionTreeDataSource::setOutlineView(OutlineViewModel* outlineView, bool expandDependency) {
    _outlineView = outlineView;
    _isExpandDependency = expandDependency;
    _loadRoot();
    _folderIcon = "folder";
    _normalItemIcon = "text-x-generic";
    _differWithDefaultIcon = "emblem-important";
    if (_outlineView) _outlineView->setDataSource(this);
}

void PrintOptionTreeDataSource::_loadRoot() {
    _settingTreeCache.clear();
    _itemCache.clear();
    _treeDictionary = std::make_unique<PlistDictionary>(summaryRoot(panesTree()));
}

void PrintOptionTreeDataSource::updatePrintOption(const std::optional<PlistDictionary>& printOption, bool finish) {
    if (printOption) {
        _currentPrintOption = printOption;
        _currentInternalPrintOption = *printOption;
        PrintOptionConverter::convertToInternalPpdKeyword(_currentInternalPrintOption);
    }
    if (finish) _finishUpdate();
}

void PrintOptionTreeDataSource::updateProfilePath(const std::optional<std::string>& profilePath, bool finish) {
    if (profilePath && !profilePath->empty())
        _profileDictionary = AppPreference::sharedInstance().profileDictionaryWithContentsOfFile(*profilePath);
    else if (profilePath)
        _profileDictionary.reset();
    if (finish) _finishUpdate();
}

PlistDictionary PrintOptionTreeDataSource::_resolveItem(OutlineItem item) {
    const PlistDictionary& node = item ? *item : *_treeDictionary;
    if (!_resolver) return node;
    if (!_isExpandDependency) return _resolver->resolveItem(node, false);
    if (auto cached = _itemCache.find(&node); cached != _itemCache.end()) return cached->second;
    PlistDictionary resolved = _resolver->resolveItem(node, true);
    if (!resolved.empty()) _itemCache[&node] = resolved;
    return resolved;
}

const PrintOptionTreeDataSource::Children& PrintOptionTreeDataSource::_children(OutlineItem item) {
    OutlineItem node = item ? item : _treeDictionary.get();
    if (auto cached = _settingTreeCache.find(node); cached != _settingTreeCache.end()) return cached->second;
    Children children;
    const PlistDictionary resolved = _resolveItem(item);
    for (const PlistValue& setting : _settingItems(item, resolved))
        if (setting.dictionary()) children.push_back(std::make_unique<const PlistDictionary>(*setting.dictionary()));
    if (const PlistValue* items = resolved.find("items"); items && items->array())
        for (const PlistValue& child : *items->array())
            if (child.dictionary()) children.push_back(std::make_unique<const PlistDictionary>(*child.dictionary()));
    return _settingTreeCache[node] = std::move(children);
}

// A pane's settings come ahead of its own items, marked where they differ from the defaults.
PlistArray PrintOptionTreeDataSource::_settingItems(OutlineItem item, const PlistDictionary& resolved) {
    const auto bundle = resolved.stringFor("bundleName");
    if (!item || !_resolver || !_currentPrintOption || !bundle || bundle->empty()) return {};
    return _resolver->settingItemsOfBundleName(*bundle, _currentInternalPrintOption);
}

std::size_t PrintOptionTreeDataSource::numberOfChildrenOfItem(OutlineItem item) { return _children(item).size(); }

OutlineItem PrintOptionTreeDataSource::child(std::size_t index, OutlineItem item) {
    const Children& children = _children(item);
    return index < children.size() ? children[index].get() : nullptr;
}

bool PrintOptionTreeDataSource::isItemExpandable(OutlineItem item) { return numberOfChildrenOfItem(item) > 0; }

// Deselects, forgets every resolved node and opens exactly the branches that lead to a
// node marked as differing, outermost first: a branch opened inside a closed one would
// stay hidden.
void PrintOptionTreeDataSource::_finishUpdate() {
    if (_outlineView) _outlineView->deselectAll();
    _itemCache.clear();
    _settingTreeCache.clear();
    if (!_outlineView) return;
    _outlineView->reloadData();
    for (std::size_t index = 0; index < numberOfChildrenOfItem(nullptr); ++index)
        _outlineView->collapseItem(child(index, nullptr), true);
    std::vector<OutlineItem> collected;
    _collectDifferingBranches(nullptr, collected);
    std::for_each(collected.rbegin(), collected.rend(), [this](OutlineItem item) { _outlineView->expandItem(item); });
}

// Collects, after its children, each node one of whose children is marked or holds a
// marked node; answers whether item is marked or holds one.
bool PrintOptionTreeDataSource::_collectDifferingBranches(OutlineItem item, std::vector<OutlineItem>& collected) {
    bool leadsToDifference = false;
    for (std::size_t index = 0; index < numberOfChildrenOfItem(item); ++index)
        if (_collectDifferingBranches(child(index, item), collected)) leadsToDifference = true;
    if (item && leadsToDifference && std::find(collected.begin(), collected.end(), item) == collected.end())
        collected.push_back(item);
    return leadsToDifference || (item && _isMarkedDiffering(_resolveItem(item)));
}

}  // namespace ComQuorvantVelmar_Plugin
