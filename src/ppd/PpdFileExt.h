#pragma once

#include <memory>
#include <string>

#include "core/PlistValue.h"
#include "ppd/PpdFile.h"

namespace ComQuorvantVelmar_Plugin {

/// The PPD access the panel uses over the print dialog's PPD. It answers exactly as
/// PpdFile and also keeps built-in descriptions of options that the PPD does not declare.
class PpdFileExt : public PpdFile {
public:
    /// Wraps an already open PPD handle that stays the caller's.
    explicit PpdFileExt(ppd_file_t* ppdFile);
    /// Opens and owns the PPD at path; nothing when it cannot be opened (error says why).
    static std::unique_ptr<PpdFileExt> initWithContentsOfFile(const std::string& path,
                                                              std::string* error = nullptr);

    /// The built-in option descriptions by main keyword: "uiType", "defaultValue" and,
    /// where the option lists them, "options".
    const PlistDictionary& extOptions() const { return _extOptions; }

    /// The localised text for "option:optionKeyword", or that key itself.
    static std::string localizedOptionKeyword(const std::string& option,
                                              const std::string& optionKeyword);

private:
    PpdFileExt(ppd_file_t* ppdFile, bool isOpenedBySelf);

    PlistDictionary _extOptions;
};

}  // namespace ComQuorvantVelmar_Plugin
