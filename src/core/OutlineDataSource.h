#pragma once

#include <cstddef>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// An item of a tree control: a node of the tree the data source describes; nullptr
/// stands for the invisible root.
using OutlineItem = const PlistDictionary*;

/// What a tree control shows in an item's cell: the label, whether it is drawn in gray,
/// and the icon (a freedesktop icon theme name, drawn at 16 x 16).
struct OutlineCell {
    std::string label;
    bool grayed = false;
    std::string iconName;
    bool operator==(const OutlineCell&) const = default;
};

/// Feeds a tree control with its items and decides which of them may be selected.
class OutlineDataSource {
public:
    virtual ~OutlineDataSource() = default;
    /// The number of children of item (of the root for nullptr).
    virtual std::size_t numberOfChildrenOfItem(OutlineItem item) = 0;
    /// The child at index of item; nullptr out of range.
    virtual OutlineItem child(std::size_t index, OutlineItem item) = 0;
    /// Whether item has children to show.
    virtual bool isItemExpandable(OutlineItem item) = 0;
    /// The cell of item.
    virtual OutlineCell objectValueForItem(OutlineItem item) = 0;
    /// Whether the user may select item.
    virtual bool shouldSelectItem(OutlineItem item) = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
