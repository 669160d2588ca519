#include <cstdio>
#include <memory>
#include <string>

#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "core/Bundle.h"
#include "ppd/PpdFileExt.h"
#include "ppd/QueuePpd.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {
namespace {

std::unique_ptr<PpdFile> openPpdFile(const std::string& path) {
    std::string error;
    std::unique_ptr<PpdFile> ppd = PpdFileExt::initWithContentsOfFile(path, &error);
    if (!ppd) throw CommandError(ExitInput, path + ": " + error);
    ppd->markDefaults();
    return ppd;
}

std::unique_ptr<PpdFile> openQueuePpd(const std::string& queue) {
    QueuePpd fetched = QueuePpd::fetch(queue);
    switch (fetched.status) {
        case QueuePpd::Status::Fetched: return std::move(fetched.ppd);
        case QueuePpd::Status::Unreachable:
            throw CommandError(ExitUnreachable, "queue " + queue + ": " + fetched.message);
        case QueuePpd::Status::UnknownQueue:
        case QueuePpd::Status::Unreadable: break;
    }
    throw CommandError(ExitInput, "queue " + queue + ": " + fetched.message);
}

std::string bundledPpdPath(const std::string& bundlePath) {
    std::shared_ptr<Bundle> bundle = Bundle::bundleWithPath(bundlePath);
    std::string path = bundle ? bundle->pathForResource("OstrinFlow", "ppd") : "";
    if (path.empty())
        throw CommandError(ExitInput, bundlePath + ": no extension bundle with OstrinFlow.ppd");
    return path;
}

std::unique_ptr<PpdFile> openSelectedPpd(const GlobalOptions& options) {
    if (options.queue) return openQueuePpd(*options.queue);
    return openPpdFile(options.ppd ? *options.ppd : bundledPpdPath(options.bundlePath));
}

const char* uiTypeName(int uiType) {
    switch (uiType) {
        case PpdUIBoolean: return "Boolean";
        case PpdUIPickOne: return "PickOne";
        case PpdUIPickMany: return "PickMany";
    }
    return "Unknown";
}

std::string choiceText(const PlistValue& choice) {
    if (const bool* flag = choice.boolean()) return *flag ? "True" : "False";
    if (const std::string* text = choice.string()) return *text;
    return "-";
}

Json optionJson(const PpdFile& ppd, const std::string& option) {
    Json choices = Json::array();
    const auto keywords = ppd.optionKeywords(option).value_or(std::vector<std::string>{});
    const auto aliases = ppd.optionAliases(option).value_or(std::vector<std::string>{});
    for (std::size_t index = 0; index < keywords.size(); ++index)
        choices.push_back({{"keyword", keywords[index]},
                           {"text", index < aliases.size() ? aliases[index] : keywords[index]}});
    return {{"keyword", option},
            {"text", ppd.mainAlias(option).value_or(option)},
            {"uiType", ppd.uiType(option)},
            {"default", toJson(ppd.defaultOptionChoice(option))},
            {"marked", toJson(ppd.findMarkedChoice(option))},
            {"choices", choices}};
}

void printJsonListing(const PpdFile& ppd) {
    Json options = Json::array();
    for (const std::string& option : ppd.optionNames()) options.push_back(optionJson(ppd, option));
    printJson({{"product", ppd.product().value_or("")}, {"options", options}});
}

void printTextListing(const PpdFile& ppd) {
    std::printf("%s\n", ppd.product().value_or("").c_str());
    for (const std::string& option : ppd.optionNames()) {
        std::printf("\n*%s/%s  [%s]  default: %s  marked: %s\n", option.c_str(),
                    ppd.mainAlias(option).value_or(option).c_str(),
                    uiTypeName(ppd.uiType(option)),
                    choiceText(ppd.defaultOptionChoice(option)).c_str(),
                    choiceText(ppd.findMarkedChoice(option)).c_str());
        const auto keywords = ppd.optionKeywords(option).value_or(std::vector<std::string>{});
        const auto aliases = ppd.optionAliases(option).value_or(std::vector<std::string>{});
        for (std::size_t index = 0; index < keywords.size(); ++index)
            std::printf("    %s/%s\n", keywords[index].c_str(),
                        index < aliases.size() ? aliases[index].c_str() : keywords[index].c_str());
    }
}

}  // namespace

int ppdCommand(const GlobalOptions& options, ArgumentList& arguments) {
    const std::string format = options.formatAmong({"text", "json"});
    arguments.positionals(0, 0);
    std::unique_ptr<PpdFile> ppd = openSelectedPpd(options);
    if (format == "json")
        printJsonListing(*ppd);
    else
        printTextListing(*ppd);
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
