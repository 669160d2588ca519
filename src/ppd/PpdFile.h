#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/PlistValue.h"

// The libcups PPD handle, declared here so that users of the engine need no cups headers.
struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace ComQuorvantVelmar_Plugin {

/// The text encoding of a PPD's strings, derived from its *LanguageEncoding and
/// *LanguageVersion.
enum class PpdStringEncoding : std::uint64_t {
    ASCII,
    UTF8,
    MacRoman,              // "ISOLatin1": classic Mac Western, on purpose not ISO 8859-1
    MacJapanese,           // "JIS83-RKSJ", read as code page 932
    MacSimplifiedChinese,  // "Chinese" with "None", read as code page 936
};

/// PPD UI types as libcups numbers them.
enum PpdUIType : int { PpdUIBoolean = 0, PpdUIPickOne = 1, PpdUIPickMany = 2 };

/// The plug-in's only access to a printer's PPD: questions about options, marking of
/// choices, and the PPD's text encoding. Keys are PPD main keywords, choices option keywords.
class PpdFile {
public:
    /// Wraps an already open PPD handle that stays the caller's (initWithPpdFile:).
    explicit PpdFile(ppd_file_t* ppdFile);
    /// Opens the PPD at path and owns it; nothing when the file is missing or libcups
    /// refuses it. error, when given, receives one line saying why.
    static std::unique_ptr<PpdFile> initWithContentsOfFile(const std::string& path,
                                                           std::string* error = nullptr);
    virtual ~PpdFile();
    PpdFile(const PpdFile&) = delete;
    PpdFile& operator=(const PpdFile&) = delete;

    /// Whether the option exists; false without a PPD.
    bool isExists(const std::string& option) const;
    /// Whether the option exists and one of its choices is exactly optionKeyword.
    bool isExists(const std::string& option, const std::string& optionKeyword) const;
    /// The option's choice keywords in PPD order ("xxx" for one that cannot be decoded);
    /// nothing for a missing option.
    std::optional<std::vector<std::string>> optionKeywords(const std::string& option) const;
    /// The choices' display texts in the same order (the keyword when a text cannot be
    /// decoded); nothing for a missing option.
    std::optional<std::vector<std::string>> optionAliases(const std::string& option) const;
    /// The display text of one choice; nothing when the option or choice is missing.
    std::optional<std::string> optionAlias(const std::string& option,
                                           const std::string& optionKeyword) const;
    /// The option's UI type (PpdUIType); 0 for a missing option.
    int uiType(const std::string& option) const;
    /// The default choice: a boolean for a boolean option (true only for "True"), else a
    /// string; null for a missing option.
    PlistValue defaultOptionChoice(const std::string& option) const;
    /// The option's display text; nothing for a missing option.
    std::optional<std::string> mainAlias(const std::string& option) const;
    /// The PPD's *Product string; nothing without a PPD or product.
    std::optional<std::string> product() const;
    /// Main keyword -> default choice over every option of every group and subgroup; empty
    /// without a PPD.
    PlistDictionary defaultValueDictionary() const;
    /// The marked choice (boolean for a boolean option, else string); null when none.
    PlistValue findMarkedChoice(const std::string& option) const;
    /// Whether optionKeyword is the marked choice of option; false with a missing argument.
    bool isMarked(const std::string& option, const std::string& optionKeyword) const;
    /// Marks the choice; the number of conflicts libcups then counts; 0 with a missing
    /// argument or a keyword that cannot be a PPD keyword.
    int markOption(const std::string& option, const std::string& optionKeyword);
    /// Marks every option's default choice, as a new job starts; nothing without a PPD.
    void markDefaults();

    /// Every option's main keyword in PPD order (groups, then their subgroups).
    std::vector<std::string> optionNames() const;
    /// The libcups handle, or nullptr.
    ppd_file_t* ppdFile() const { return _ppdFile; }
    PpdStringEncoding stringEncoding() const { return _stringEncoding; }

protected:
    PpdFile(ppd_file_t* ppdFile, bool isOpenedBySelf);
    /// Opens path with libcups; nullptr (and error set) on failure.
    static ppd_file_t* openPpd(const std::string& path, std::string* error);

private:
    ppd_file_t* _ppdFile = nullptr;
    PpdStringEncoding _stringEncoding = PpdStringEncoding::ASCII;
    bool _isOpendBySelf = false;
};

}  // namespace ComQuorvantVelmar_Plugin
