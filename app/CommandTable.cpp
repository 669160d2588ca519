#include "CommandTable.h"

#include "Commands.h"

namespace OstrinFlowCommand {

const std::vector<Command>& commandTable() {
    static const std::vector<Command> table = {
        {"ppd", "the PPD's options, choices, defaults and marked choices",
         "Usage: ostrin-flow [--queue NAME | --ppd FILE] [--format text|json] ppd\n\n"
         "Lists every option of the PPD in PPD order: main keyword, display text, UI type\n"
         "(0 Boolean, 1 PickOne, 2 PickMany), default choice, marked choice, and each choice\n"
         "with its display text. The PPD is the queue's (fetched from cupsd, with the\n"
         "queue's defaults and your saved options marked), the given file, or the sample\n"
         "PPD of the extension bundle (defaults marked).\n\n"
         "  --format text   one block per option (default)\n"
         "  --format json   {\"product\": ..., \"options\": [{\"keyword\", \"text\", \"uiType\",\n"
         "                  \"default\", \"marked\", \"choices\": [{\"keyword\", \"text\"}]}]};\n"
         "                  a Boolean option's default and marked choice are JSON booleans\n\n"
         "Exit status 3 for a missing or malformed PPD or an unknown queue, 4 when cupsd\n"
         "cannot be reached.\n",
         ppdCommand},
    };
    return table;
}

}  // namespace OstrinFlowCommand
