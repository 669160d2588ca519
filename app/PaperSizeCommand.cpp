#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "ppd/PrintOptionConverter.h"

namespace OstrinFlowCommand {

int paperSizeCommand(const GlobalOptions& options, ArgumentList& arguments) {
    options.formatAmong({"json"});
    const auto names = arguments.positionals(0, 1);
    if (names.empty()) throw UsageError("paper-size needs a paper size NAME");
    const std::string& name = names.front();
    auto record = ComQuorvantVelmar_Plugin::PrintOptionConverter::getCepSizeFromPaperSizeType(name);
    if (!record) throw CommandError(ExitInput, "unknown paper size \"" + name + "\"");
    printJson(toJson(ComQuorvantVelmar_Plugin::PlistValue(*record)));
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
