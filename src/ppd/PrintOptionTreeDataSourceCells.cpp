#include <algorithm>
#include <array>
#include <string_view>

#include "core/LocalizedString.h"
#include "core/StringHelpers.h"
#include "ppd/PrintOptionTreeDataSource.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Panes of colour details and the two-colour simulation read as settings, not as folders.
constexpr std::array<std::string_view, 4> settingLikePaneSuffixes{
    "ColorDetailsCommon_", "ColorDetailsRGB_", "ColorDetailsSpotColor_", "TwoColorPrintingSimulation_"};

std::optional<std::string> nonEmptyString(const PlistDictionary& node, std::string_view key) {
    auto text = node.stringFor(key);
    return text && !text->empty() ? text : std::nullopt;
}

}  // namespace

OutlineCell PrintOptionTreeDataSource::objectValueForItem(OutlineItem item) {
    const PlistDictionary node = _resolveItem(item);
    OutlineCell cell;
    if (auto alias = nonEmptyString(node, "mainAlias")) {
        cell.label = *alias;
    } else if (auto name = nonEmptyString(node, "itemName")) {
        cell.label = *name;
    } else if (auto bundle = nonEmptyString(node, "bundleName")) {
        auto panelName = _resolver ? _resolver->panelNameOfBundleName(*bundle) : std::nullopt;
        cell.grayed = !panelName;
        cell.label = panelName ? *panelName : BSLocalizedString(*bundle);
    } else if (OutlineItem first = child(0, item)) {
        // A group without a name of its own takes the first part of its first setting's plug-in.
        const std::string plugInName = first->stringFor("plugInName", "");
        if (const auto separator = plugInName.find('_'); separator != std::string::npos)
            cell.label = "  " + BSLocalizedString(plugInName.substr(0, separator));
    }
    cell.iconName = _iconName(node);
    _widenColumn(item, cell.label);
    return cell;
}

std::string PrintOptionTreeDataSource::_iconName(const PlistDictionary& node) const {
    if (_isMarkedDiffering(node)) return _differWithDefaultIcon;
    const auto bundle = nonEmptyString(node, "bundleName");
    if (!bundle) return _normalItemIcon;
    for (std::string_view suffix : settingLikePaneSuffixes)
        if (bundle->ends_with(suffix)) return _normalItemIcon;
    return _folderIcon;
}

void PrintOptionTreeDataSource::_widenColumn(OutlineItem item, const std::string& label) {
    if (!_outlineView || !item) return;
    const std::int64_t level = std::max<std::int64_t>(_outlineView->levelForItem(item), 0);
    const double needed =
        _outlineView->widthOfLabel(label) + static_cast<double>(level) * _outlineView->indentationPerLevel();
    if (_outlineView->columnWidth() < needed) _outlineView->setColumnWidth(needed);
}

bool PrintOptionTreeDataSource::_isMarkedDiffering(const PlistDictionary& node) {
    const PlistValue* mark = node.find("differedWithDefault");
    return mark && boolValueIfString(*mark);
}

bool PrintOptionTreeDataSource::shouldSelectItem(OutlineItem item) {
    const auto bundle = nonEmptyString(_resolveItem(item), "bundleName");
    return !bundle || (_resolver && _resolver->panelNameOfBundleName(*bundle));
}

}  // namespace ComQuorvantVelmar_Plugin
