#include "CommandTable.h"

#include "Commands.h"

namespace OstrinFlowCommand {

const std::vector<Command>& commandTable() {
    static const std::vector<Command> table = {
    };
    return table;
}

}  // namespace OstrinFlowCommand
