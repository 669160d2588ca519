// Keys that the panes split or merge differently from the PPD: joined keys, punch, output
// order, stacker types, crease positions and the authenticated user.

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSupport;

namespace {

constexpr std::string_view kPaperTypeTabbed = "PaperType_MediaTypeTabbed";
constexpr std::string_view kPaperTypeAll =
    "PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber";
constexpr std::string_view kPaperTypeBypassAll =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";
constexpr std::string_view kSpecialTonerFront = "SpTonerSpecifyColorFront_SpTonerColorFront";
constexpr std::string_view kSpecialTonerBack = "SpTonerSpecifyColorBack_SpTonerColorBack";

struct PunchRow {
    std::string_view joined;
    std::string_view punch;
    std::string_view holes;
};

// "MixSize" has no "Multi" row: the press cannot punch mixed sizes with multiple holes.
constexpr std::array<PunchRow, 20> kPunchRows{{
    {"LeftHoles2", "Left", "Holes2"},        {"LeftHoles3", "Left", "Holes3"},
    {"LeftHoles4", "Left", "Holes4"},        {"LeftHolesMulti", "Left", "HolesMulti"},
    {"RightHoles2", "Right", "Holes2"},      {"RightHoles3", "Right", "Holes3"},
    {"RightHoles4", "Right", "Holes4"},      {"RightHolesMulti", "Right", "HolesMulti"},
    {"TopHoles2", "Top", "Holes2"},          {"TopHoles3", "Top", "Holes3"},
    {"TopHoles4", "Top", "Holes4"},          {"TopHolesMulti", "Top", "HolesMulti"},
    {"BottomHoles2", "Bottom", "Holes2"},    {"BottomHoles3", "Bottom", "Holes3"},
    {"BottomHoles4", "Bottom", "Holes4"},    {"BottomHolesMulti", "Bottom", "HolesMulti"},
    {"MixSizeHoles2", "MixSize", "Holes2"},  {"MixSizeHoles3", "MixSize", "Holes3"},
    {"MixSizeHoles4", "MixSize", "Holes4"},  {"None", "None", "None"},
}};

struct OutputOrderRow {
    std::string_view joined;
    std::string_view pageOrder;
    std::string_view outputMode;
};

constexpr std::array<OutputOrderRow, 4> kOutputOrderRows{{
    {"FaceDown", "Normal", "FaceDown"},
    {"FaceUp", "Normal", "FaceUp"},
    {"FaceUpReverse", "Reverse", "FaceUp"},
    {"FaceDownReverse", "Reverse", "FaceDown"},
}};

struct StackerPair {
    std::string_view tray;
    std::string_view type;
};

constexpr std::array<StackerPair, 6> kStackerPairs{{
    {"QVInputSlot", "StkType"},
    {"BlankPapersFrontTray", "BlankPapersFrontStkType"},
    {"BlankPapersBackTray", "BlankPapersBackStkType"},
    {"SeparatorsTray", "SeparatorsStkType"},
    {"Imposition1stTray", "Imposition1stStkType"},
    {"CoverPageTray", "CoverPageStkType"},
}};

// A joined part that is a boolean or number is written by its truth; other kinds of
// value cannot be joined.
std::optional<std::string> joinablePart(const PlistValue* value) {
    if (!value) return std::nullopt;
    if (const auto* text = value->string()) return text->empty() ? std::nullopt : std::optional(*text);
    if (auto number = value->number()) return *number != 0 ? "True" : "False";
    return std::nullopt;
}

std::string loginName() {
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found && found->pw_name)
        return found->pw_name;
    for (const char* variable : {"LOGNAME", "USER"})
        if (const char* name = std::getenv(variable); name && *name) return name;
    return {};
}

void swapCreasePair(PlistDictionary& printOption, int first, int second) {
    for (std::string_view stem : {"CreasePosition", "CreaseDirection", "CreasePressureLevel"}) {
        PrintOptionConverter::swapKeywordValue(printOption, std::string(stem) + std::to_string(first),
                                               std::string(stem) + std::to_string(second));
    }
}

void exchangeCreaseOrder(PlistDictionary& printOption, int creaseCount) {
    switch (creaseCount) {
    case 2: swapCreasePair(printOption, 1, 2); break;
    case 3: swapCreasePair(printOption, 1, 3); break;
    case 4:
        swapCreasePair(printOption, 1, 4);
        swapCreasePair(printOption, 2, 3);
        break;
    case 5:
        swapCreasePair(printOption, 1, 5);
        swapCreasePair(printOption, 2, 4);
        break;
    default: break;
    }
}

// Positions are written as unsigned 32-bit numbers, so a position beyond the sheet wraps
// around; the press reads them that way.
void measureCreasesFromOtherEdge(PlistDictionary& printOption) {
    auto length = nonEmptyString(printOption, "ChgPrintPaperSizeLength");
    if (!length) return;
    for (int index = 1; index <= 5; ++index) {
        const std::string key = "CreasePosition" + std::to_string(index);
        if (auto position = nonEmptyString(printOption, key)) {
            const auto distance = static_cast<std::int64_t>(integerOf(*length)) - integerOf(*position);
            printOption.set(key, std::to_string(static_cast<std::uint32_t>(distance)));
        }
    }
}

}  // namespace

void PrintOptionConverter::splitKeyword(PlistDictionary& printOption, std::string_view joinedMainKeyword) {
    auto value = nonEmptyString(printOption, joinedMainKeyword);
    if (!value) return;
    const auto keys = components(joinedMainKeyword, '_');
    const auto values = components(*value, '_');
    if (keys.size() != values.size()) return;
    for (std::size_t index = 0; index < keys.size(); ++index) printOption.set(keys[index], values[index]);
    printOption.erase(joinedMainKeyword);
}

void PrintOptionConverter::joinKeyword(PlistDictionary& printOption, std::string_view joinedMainKeyword) {
    const auto keys = components(joinedMainKeyword, '_');
    std::string joined;
    for (const std::string& key : keys) {
        auto part = joinablePart(printOption.find(key));
        if (!part) return;
        joined += (joined.empty() ? "" : "_") + *part;
    }
    for (const std::string& key : keys) printOption.erase(key);
    printOption.set(std::string(joinedMainKeyword), joined);
}

void PrintOptionConverter::swapKeywordValue(PlistDictionary& printOption, std::string_view key1,
                                            std::string_view key2) {
    PlistValue* first = printOption.find(key1);
    PlistValue* second = printOption.find(key2);
    if (first && second) std::swap(*first, *second);
}

// The panes measure crease positions from one edge and the press from the other, so the
// same routine serves both directions.
void PrintOptionConverter::swapCreaseKeyword(PlistDictionary& printOption) {
    auto creaseCount = nonEmptyString(printOption, "CreaseNum");
    if (!creaseCount) return;
    exchangeCreaseOrder(printOption, integerOf(*creaseCount));
    measureCreasesFromOtherEdge(printOption);
}

// True when the weight key is ABSENT. Callers depend on this reading; the name is kept.
bool PrintOptionConverter::mediaTypeWeightValueExist(const PlistDictionary& printOption) {
    return !printOption.contains("MediaTypeWeightValue");
}

namespace ConverterSteps {

void markStackerTypes(PlistDictionary& printOption) {
    for (const StackerPair& pair : kStackerPairs)
        if (auto tray = nonEmptyString(printOption, pair.tray))
            printOption.set(std::string(pair.type), *tray == "TrayStk" ? "Name" : "Property");
}

void splitPunch(PlistDictionary& printOption) {
    if (!printOption.contains("Punch_PunchHoles")) return;
    const PunchRow* found = &kPunchRows.back();
    for (const PunchRow& row : kPunchRows)
        if (holds(printOption, "Punch_PunchHoles", row.joined)) found = &row;
    printOption.set("Punch", found->punch);
    printOption.set("PunchHoles", found->holes);
    printOption.erase("Punch_PunchHoles");
}

void joinPunch(PlistDictionary& printOption) {
    if (!printOption.contains("Punch") || !printOption.contains("PunchHoles")) return;
    std::string_view joined = "None";
    for (const PunchRow& row : kPunchRows)
        if (holds(printOption, "Punch", row.punch) && holds(printOption, "PunchHoles", row.holes)) joined = row.joined;
    printOption.set("Punch_PunchHoles", joined);
    printOption.erase("Punch");
    printOption.erase("PunchHoles");
}

void splitOutputOrder(PlistDictionary& printOption) {
    if (!printOption.contains("PageOrder_new")) return;
    OutputOrderRow found{"", "Normal", "FaceUp"};
    for (const OutputOrderRow& row : kOutputOrderRows)
        if (holds(printOption, "PageOrder_new", row.joined)) found = row;
    printOption.set("PageOrder", found.pageOrder);
    printOption.set("OutputMode", found.outputMode);
    printOption.erase("PageOrder_new");
}

// An unknown pair reads back as "FaceDown", not as the "FaceUp" that an unknown value
// is written as: the two directions have always differed here.
void joinOutputOrder(PlistDictionary& printOption) {
    if (!printOption.contains("PageOrder") || !printOption.contains("OutputMode")) return;
    std::string_view joined = "FaceDown";
    for (const OutputOrderRow& row : kOutputOrderRows)
        if (holds(printOption, "PageOrder", row.pageOrder) && holds(printOption, "OutputMode", row.outputMode))
            joined = row.joined;
    printOption.set("PageOrder_new", joined);
    printOption.erase("PageOrder");
    printOption.erase("OutputMode");
}

void splitPaperTypes(PlistDictionary& printOption) {
    for (std::string_view key : {kPaperTypeTabbed, kPaperTypeAll, kPaperTypeBypassAll})
        PrintOptionConverter::splitKeyword(printOption, key);
}

void joinPaperTypes(PlistDictionary& printOption) {
    PrintOptionConverter::joinKeyword(
        printOption, PrintOptionConverter::mediaTypeWeightValueExist(printOption) ? kPaperTypeAll : kPaperTypeTabbed);
    PrintOptionConverter::joinKeyword(printOption, kPaperTypeBypassAll);
}

void fillAuthJobUserId(PlistDictionary& printOption) {
    if (holds(printOption, "AuthJobUserIdType", "Login")) printOption.set("AuthJobUserId", loginName());
    printOption.erase("AuthJobUserIdType");
}

void splitSpecialTonerColors(PlistDictionary& printOption) {
    PrintOptionConverter::splitKeyword(printOption, kSpecialTonerFront);
    PrintOptionConverter::splitKeyword(printOption, kSpecialTonerBack);
}

void joinSpecialTonerColors(PlistDictionary& printOption) {
    PrintOptionConverter::joinKeyword(printOption, kSpecialTonerFront);
    PrintOptionConverter::joinKeyword(printOption, kSpecialTonerBack);
}

}  // namespace ConverterSteps
}  // namespace ComQuorvantVelmar_Plugin
