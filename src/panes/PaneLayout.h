#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

class ViewNode;

/// A pane's layout file: a property list whose "view" is a tree of view descriptions, each
/// a dictionary with "class" ("View", the default, "TabView" or "VORNUI"):
///   View:    "subviews", an array of view descriptions;
///   TabView: "tabs", an array of {"label", "identifier", "view"};
///   VORNUI:  "key", the main keyword of the control's description;
/// and optionally "hidden" (Boolean). In keys, labels and identifiers "%@" stands for the
/// role in which the pane was loaded ("Front", "Back"), or nothing.
namespace PaneLayout {

/// Turns a tab label of the file into the text shown.
using Localizer = std::function<std::string(const std::string&)>;

/// text with every "%@" replaced by role ("" without role).
std::string withRole(const std::string& text, const std::optional<std::string>& role);
/// The view tree of a view description; nullptr when description is not a dictionary.
/// Settings controls carry their description key in their text attribute.
std::shared_ptr<ViewNode> viewOfDescription(const PlistValue& description, const std::optional<std::string>& role,
                                            const Localizer& localizer);
/// Stacks every view of the tree top to bottom within its container, controls as tall as
/// they are with their children, tab pages as tall as their tallest page.
void layOut(ViewNode& root);

}  // namespace PaneLayout
}  // namespace ComQuorvantVelmar_Plugin
