#pragma once

#include <memory>

#include "ppd/PaneTreeResolver.h"

namespace ComQuorvantVelmar_Plugin {

class PanePlugInMgr;

/// Resolves the summary tree's nodes through a pane plug-in manager: the one given, or the
/// process's shared manager at the time of each question.
class PaneManagerTreeResolver : public PaneTreeResolver {
public:
    explicit PaneManagerTreeResolver(std::shared_ptr<PanePlugInMgr> manager = nullptr)
        : _manager(std::move(manager)) {}

    PlistDictionary resolveItem(const PlistDictionary& item, bool expandDependency) override;
    std::optional<std::string> panelNameOfBundleName(const std::string& name) override;
    PlistArray settingItemsOfBundleName(const std::string& name, const PlistDictionary& printOption) override;

private:
    std::shared_ptr<PanePlugInMgr> _managerNow() const;

    std::shared_ptr<PanePlugInMgr> _manager;
};

}  // namespace ComQuorvantVelmar_Plugin
