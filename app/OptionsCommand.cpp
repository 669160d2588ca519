#include <cstdio>

#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "PanelSession.h"
#include "pde/LpOptionQuoting.h"
#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/TarnPDEByCocoa.h"
#include "pde/TicketValueEscaping.h"
#include "ppd/PpdFile.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {
namespace {

// The job's settings in three groups: the marked PPD choices, the custom entries (by option
// key, unescaped) and the print system's own copies, collate and duplex settings.
struct JobSettings {
    std::vector<std::pair<std::string, std::string>> ppd;
    std::vector<std::pair<std::string, std::string>> custom;
    std::vector<std::pair<std::string, std::string>> standard;
};

JobSettings jobSettingsOf(PanelSession& session) {
    JobSettings settings;
    PpdFile ppd(session.host().ppdFile());
    const std::string prefix(PrintSettingsTicket::customKeyPrefix);
    for (const auto& [name, value] : session.host().printSettings()->cupsOptions()) {
        if (name.rfind(prefix, 0) == 0)
            settings.custom.emplace_back(name.substr(prefix.size()), TicketValueEscaping::unescape(value));
        else if (ppd.isExists(name))
            settings.ppd.emplace_back(name, value);
    }
    TarnPDEByCocoa& panel = session.panel();
    settings.standard = {{"copies", panel.getCopies().value_or("")},
                         {"collate", panel.getCollate().value_or("")},
                         {"duplex", panel.getDuplex().value_or("")}};
    return settings;
}

Json jsonObject(const std::vector<std::pair<std::string, std::string>>& entries) {
    Json object = Json::object();
    for (const auto& [name, value] : entries) object[name] = value;
    return object;
}

void printText(const JobSettings& settings) {
    const std::pair<const char*, const std::vector<std::pair<std::string, std::string>>*> groups[] = {
        {"PPD choices", &settings.ppd}, {"Custom entries", &settings.custom}, {"Standard settings", &settings.standard}};
    for (const auto& [title, entries] : groups) {
        std::printf("%s:\n", title);
        for (const auto& [name, value] : *entries) std::printf("  %s=%s\n", name.c_str(), value.c_str());
    }
}

void printLpArguments(PanelSession& session) {
    const auto arguments = LpOptionQuoting::lpArguments(session.host().printSettings()->cupsOptions());
    if (!arguments) throw CommandError(ExitInput, "a setting's name cannot be given to lp with -o");
    std::printf("%s\n", arguments->c_str());
}

}  // namespace

int optionsCommand(const GlobalOptions& options, ArgumentList& arguments) {
    const std::string format = options.formatAmong({"text", "json", "lp"});
    const SettingsRequest request = SettingsRequest::take(arguments);
    arguments.positionals(0, 0);
    PanelSession session(options);
    if (const int refused = session.applyAndSave(request)) return refused;
    if (format == "lp") {
        printLpArguments(session);
        return ExitSuccess;
    }
    const JobSettings settings = jobSettingsOf(session);
    if (format == "json")
        printJson({{"ppd", jsonObject(settings.ppd)},
                   {"custom", jsonObject(settings.custom)},
                   {"standard", jsonObject(settings.standard)}});
    else
        printText(settings);
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
