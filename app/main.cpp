#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "ArgumentList.h"
#include "CommandError.h"
#include "CommandTable.h"
#include "ExitCode.h"
#include "GlobalOptions.h"
#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"

using namespace OstrinFlowCommand;

namespace {

void printUsage(std::FILE* stream) {
    std::fprintf(stream,
                 "Usage: ostrin-flow [GLOBAL OPTIONS] COMMAND [ARGUMENTS]\n"
                 "       ostrin-flow COMMAND --help\n\n"
                 "The print settings of the Ostrin production press, for scripts, hot folders\n"
                 "and the panel window.\n\nCommands:\n");
    for (const Command& command : commandTable())
        std::fprintf(stream, "  %-16s %s\n", command.name.c_str(), command.summary.c_str());
    std::fprintf(stream, "\n%s\nExit codes: 0 success, 1 settings refused, 2 usage error, "
                 "3 input error, 4 printer or server unreachable.\n",
                 globalOptionsHelp());
}

const Command* findCommand(const std::string& name) {
    for (const Command& command : commandTable())
        if (command.name == name) return &command;
    return nullptr;
}

// Every command speaks the chosen language and reads the chosen bundle's resources.
void useLanguageAndBundle(const GlobalOptions& options) {
    using namespace ComQuorvantVelmar_Plugin;
    if (options.language) PreferredLanguages::setFirst(*options.language);
    if (std::shared_ptr<Bundle> bundle = Bundle::bundleWithPath(options.bundlePath)) {
        SetNSBundleForPrincipalBundle(bundle);
        SetNSBundleForLocalizedString(bundle);
    }
}

int run(int argc, char** argv) {
    ArgumentList arguments({argv + 1, argv + argc});
    const bool wantsHelp = arguments.takeFlag("help", "h");
    GlobalOptions options = GlobalOptions::take(arguments, argv[0]);
    ComQuorvantVelmar_Plugin::Diagnostics::setEcho(options.verbose);
    useLanguageAndBundle(options);
    std::string name = arguments.takeFirstPositional();
    if (name.empty() || name == "help") {
        if (!wantsHelp && name.empty()) throw UsageError("no command given");
        printUsage(stdout);
        return ExitSuccess;
    }
    const Command* command = findCommand(name);
    if (!command) throw UsageError("unknown command \"" + name + "\"");
    if (wantsHelp) {
        std::printf("%s\n%s", command->help.c_str(), globalOptionsHelp());
        return ExitSuccess;
    }
    return command->run(options, arguments);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const UsageError& error) {
        std::fprintf(stderr, "ostrin-flow: %s\nTry 'ostrin-flow --help'.\n", error.what());
        return ExitUsage;
    } catch (const CommandError& error) {
        std::fprintf(stderr, "ostrin-flow: %s\n", error.what());
        return error.exitCode();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ostrin-flow: %s\n", error.what());
        return ExitInput;
    }
}
