#include "ppd/PpdFile.h"

#include <cups/ppd.h>

#include <cstring>
#include <functional>

#include "core/FileUtil.h"
#include "ppd/PpdText_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

ppd_option_t* findOption(ppd_file_t* ppd, const std::string& option) {
    if (!ppd) return nullptr;
    std::optional<PpdText::Keyword> keyword = PpdText::toKeyword(option);
    return keyword ? ppdFindOption(ppd, keyword->c_str()) : nullptr;
}

// Options in PPD order: each group's own options, then those of each of its subgroups.
void forEachOption(ppd_file_t* ppd, const std::function<void(ppd_option_t&)>& visit) {
    if (!ppd) return;
    for (int g = 0; g < ppd->num_groups; ++g) {
        ppd_group_t& group = ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) visit(group.options[o]);
        for (int s = 0; s < group.num_subgroups; ++s) {
            ppd_group_t& subgroup = group.subgroups[s];
            for (int o = 0; o < subgroup.num_options; ++o) visit(subgroup.options[o]);
        }
    }
}

}  // namespace

PpdFile::PpdFile(ppd_file_t* ppdFile) : PpdFile(ppdFile, false) {}

PpdFile::PpdFile(ppd_file_t* ppdFile, bool isOpenedBySelf)
    : _ppdFile(ppdFile), _isOpendBySelf(isOpenedBySelf) {
    if (_ppdFile) _stringEncoding = PpdText::encodingOf(_ppdFile);
}

PpdFile::~PpdFile() {
    if (_isOpendBySelf && _ppdFile) ppdClose(_ppdFile);
}

ppd_file_t* PpdFile::openPpd(const std::string& path, std::string* error) {
    auto fail = [error](std::string reason) -> ppd_file_t* {
        if (error) *error = std::move(reason);
        return nullptr;
    };
    if (path.empty() || path.find('\0') != std::string::npos) return fail("not a file path");
    if (!FileUtil::exists(path) || FileUtil::isDirectory(path)) return fail("no such file");
    ppd_file_t* ppd = ppdOpenFile(path.c_str());
    if (ppd) return ppd;
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    return fail(std::string(ppdErrorString(status)) + " on line " + std::to_string(line));
}

std::unique_ptr<PpdFile> PpdFile::initWithContentsOfFile(const std::string& path,
                                                         std::string* error) {
    ppd_file_t* ppd = openPpd(path, error);
    if (!ppd) return nullptr;
    return std::unique_ptr<PpdFile>(new PpdFile(ppd, true));
}

bool PpdFile::isExists(const std::string& option) const {
    return findOption(_ppdFile, option) != nullptr;
}

bool PpdFile::isExists(const std::string& option, const std::string& optionKeyword) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    std::optional<PpdText::Keyword> choice = PpdText::toKeyword(optionKeyword);
    if (!found || !choice || found->num_choices <= 0) return false;
    for (int c = 0; c < found->num_choices; ++c)
        if (std::strcmp(found->choices[c].choice, choice->c_str()) == 0) return true;
    return false;
}

std::optional<std::vector<std::string>> PpdFile::optionKeywords(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    if (!found) return std::nullopt;
    std::vector<std::string> keywords;
    for (int c = 0; c < found->num_choices; ++c)
        keywords.push_back(
            PpdText::decodeBytes(found->choices[c].choice, _stringEncoding).value_or("xxx"));
    return keywords;
}

std::optional<std::vector<std::string>> PpdFile::optionAliases(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    if (!found) return std::nullopt;
    std::vector<std::string> aliases;
    for (int c = 0; c < found->num_choices; ++c) {
        const ppd_choice_t& choice = found->choices[c];
        std::optional<std::string> text =
            PpdText::decodeText(_ppdFile, choice.text, _stringEncoding);
        aliases.push_back(text ? *text
                               : PpdText::decodeBytes(choice.choice, _stringEncoding).value_or("xxx"));
    }
    return aliases;
}

std::optional<std::string> PpdFile::optionAlias(const std::string& option,
                                                const std::string& optionKeyword) const {
    std::optional<std::vector<std::string>> keywords = optionKeywords(option);
    std::optional<std::vector<std::string>> aliases = optionAliases(option);
    if (!keywords || !aliases) return std::nullopt;
    for (std::size_t index = 0; index < keywords->size() && index < aliases->size(); ++index)
        if ((*keywords)[index] == optionKeyword) return (*aliases)[index];
    return std::nullopt;
}

int PpdFile::uiType(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    return found ? static_cast<int>(found->ui) : 0;
}

namespace {

// A boolean option's choice is true only for the exact word "True"; "true" is false.
PlistValue choiceValue(const ppd_option_t& option, const char* keyword,
                       PpdStringEncoding encoding) {
    if (option.ui == PPD_UI_BOOLEAN) return PlistValue(keyword && std::strcmp(keyword, "True") == 0);
    if (!keyword) return PlistValue();
    std::optional<std::string> text = PpdText::decodeBytes(keyword, encoding);
    return text ? PlistValue(*text) : PlistValue();
}

}  // namespace

PlistValue PpdFile::defaultOptionChoice(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    return found ? choiceValue(*found, found->defchoice, _stringEncoding) : PlistValue();
}

std::optional<std::string> PpdFile::mainAlias(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    if (!found) return std::nullopt;
    return PpdText::decodeText(_ppdFile, found->text, _stringEncoding);
}

std::optional<std::string> PpdFile::product() const {
    if (!_ppdFile || !_ppdFile->product) return std::nullopt;
    return PpdText::decodeBytes(_ppdFile->product, _stringEncoding);
}

PlistDictionary PpdFile::defaultValueDictionary() const {
    PlistDictionary defaults;
    forEachOption(_ppdFile, [&](ppd_option_t& option) {
        defaults.set(option.keyword, choiceValue(option, option.defchoice, _stringEncoding));
    });
    return defaults;
}

PlistValue PpdFile::findMarkedChoice(const std::string& option) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    if (!found) return PlistValue();
    ppd_choice_t* marked = ppdFindMarkedChoice(_ppdFile, found->keyword);
    return marked ? choiceValue(*found, marked->choice, _stringEncoding) : PlistValue();
}

bool PpdFile::isMarked(const std::string& option, const std::string& optionKeyword) const {
    ppd_option_t* found = findOption(_ppdFile, option);
    if (!found) return false;
    ppd_choice_t* marked = ppdFindMarkedChoice(_ppdFile, found->keyword);
    std::optional<PpdText::Keyword> choice = PpdText::toKeyword(optionKeyword);
    return marked && choice && std::strcmp(marked->choice, choice->c_str()) == 0;
}

int PpdFile::markOption(const std::string& option, const std::string& optionKeyword) {
    std::optional<PpdText::Keyword> keyword = PpdText::toKeyword(option);
    std::optional<PpdText::Keyword> choice = PpdText::toKeyword(optionKeyword);
    if (!_ppdFile || !keyword || !choice) return 0;
    return ppdMarkOption(_ppdFile, keyword->c_str(), choice->c_str());
}

void PpdFile::markDefaults() {
    if (_ppdFile) ppdMarkDefaults(_ppdFile);
}

std::vector<std::string> PpdFile::optionNames() const {
    std::vector<std::string> names;
    forEachOption(_ppdFile, [&](ppd_option_t& option) { names.emplace_back(option.keyword); });
    return names;
}

}  // namespace ComQuorvantVelmar_Plugin
