#include "pde/PdeHost.h"

#include "core/Diagnostics.h"
#include "pde/PrintSettings.h"
#include "ppd/PpdFile.h"

namespace ComQuorvantVelmar_Plugin {

PdeHost::~PdeHost() = default;

bool PdeHost::markPpdChoice(PpdFile* ppd, PrintSettings& settings, const std::string& option,
                            const std::string& choice) {
    if (ppd) {
        if (!ppd->isExists(option, choice)) return false;
        // A save writes every setting, and libcups counts all of the PPD's constraints on
        // each mark: a choice marked already is left as it is.
        if (ppd->isMarked(option, choice)) return settings.setValue(option, choice);
        // libcups keeps its own linked options in step (PageRegion with PageSize); the
        // press's own conflicts are the panel's to put to the user, never resolved here.
        const int conflicts = ppd->markOption(option, choice);
        if (conflicts > 0)
            Diagnostics::logf("### %s=%s leaves %d PPD conflict(s)", option.c_str(), choice.c_str(),
                              conflicts);
    }
    return settings.setValue(option, choice);
}

}  // namespace ComQuorvantVelmar_Plugin
