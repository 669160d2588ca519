#include <string>

#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"
#include "core/LocalizedString.h"
#include "ppd/PrintOptionConverter.h"

namespace OstrinFlowCommand {

using namespace ComQuorvantVelmar_Plugin;

namespace {

enum class Direction { Canonical, Internal, PpdFormat, InputManager };

Direction directionNamed(const std::optional<std::string>& name) {
    if (!name) throw UsageError("convert needs --to canonical, internal, ppd-format or input-manager");
    if (*name == "canonical") return Direction::Canonical;
    if (*name == "internal") return Direction::Internal;
    if (*name == "ppd-format") return Direction::PpdFormat;
    if (*name == "input-manager") return Direction::InputManager;
    throw UsageError("--to takes canonical, internal, ppd-format or input-manager, not \"" + *name + "\"");
}

// The conversion table lives in the extension bundle.
void useBundle(const std::string& bundlePath) {
    if (!BSPrincipalBundle()) throw CommandError(ExitInput, "no extension bundle at " + bundlePath);
    if (!PrintOptionConverter::sharedInstance().convertTable())
        throw CommandError(ExitInput, "the extension bundle " + bundlePath + " has no keyword conversion table");
}

bool holdsPassword(const PlistDictionary& printOption) {
    for (const char* key : {"SecPrintPassword", "RscPassword", "AuthJobPassword"})
        if (!printOption.stringFor(key, "").empty()) return true;
    return false;
}

// Passwords pass through the maker's encoding library in the bundle's resources; without
// it they are written empty, which a script must hear about.
void loadEncodingLibrary(const std::string& bundlePath, const PlistDictionary& printOption) {
    auto bundle = Bundle::bundleWithPath(bundlePath);
    const int error = bundle ? loadEncDec(bundle->resourcePath()) : -1;
    if (error == 0) return;
    Diagnostics::logf("###loadEncDec: error %d", error);
    if (holdsPassword(printOption))
        Diagnostics::error("ostrin-flow: warning: no encoding library in " + bundlePath +
                           "; passwords are written empty");
}

PlistDictionary converted(Direction direction, PlistDictionary printOption, const std::string& bundlePath) {
    switch (direction) {
    case Direction::Canonical:
        loadEncodingLibrary(bundlePath, printOption);
        PrintOptionConverter::convertToCanonicalPpdKeyword(printOption, 1);
        break;
    case Direction::Internal:
        loadEncodingLibrary(bundlePath, printOption);
        PrintOptionConverter::convertToInternalPpdKeyword(printOption);
        break;
    case Direction::PpdFormat:
        useBundle(bundlePath);
        return PrintOptionConverter::sharedInstance().toPpdKeywordFormat(printOption);
    case Direction::InputManager:
        useBundle(bundlePath);
        return PrintOptionConverter::sharedInstance().toInputMgrFormat(printOption);
    }
    return printOption;
}

}  // namespace

int convertCommand(const GlobalOptions& options, ArgumentList& arguments) {
    const Direction direction = directionNamed(arguments.take("to"));
    options.formatAmong({"json"});
    const auto files = arguments.positionals(0, 1);
    PlistDictionary printOption = readJsonObject(files.empty() ? "-" : files.front());
    printJson(toJson(PlistValue(converted(direction, std::move(printOption), options.bundlePath))));
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
