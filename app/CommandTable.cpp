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
        {"convert", "converts a print option dictionary between its forms",
         "Usage: ostrin-flow convert --to canonical|internal|ppd-format|input-manager [FILE|-]\n\n"
         "Reads one JSON object (from FILE, or standard input when FILE is - or absent),\n"
         "converts it as the panel does and prints the result as a JSON object.\n\n"
         "  --to canonical       the panes' keys (lengths in mm) -> PPD main keywords and\n"
         "                       option keywords (lengths in cep), with custom sizes, print\n"
         "                       positions and passwords\n"
         "  --to internal        PPD main keywords -> the panes' keys\n"
         "  --to ppd-format      input-manager tags -> PPD keywords, through the conversion\n"
         "                       table of the extension bundle (--resources)\n"
         "  --to input-manager   PPD keywords -> input-manager tags, through the same table\n\n"
         "Passwords (SecPrintPassword, RscPassword, AuthJobPassword) are encoded and decoded\n"
         "with the printer maker's encoding library, libencryption.so in the bundle's\n"
         "Contents/Resources; without it they are written empty, with a warning on stderr.\n"
         "Spot colour names of the two-colour press simulation are rewritten for users whose\n"
         "first language writes a decimal comma (--lang). Values are kept as they are given:\n"
         "strings, booleans or numbers.\n\n"
         "Exit status 2 for a missing or unknown --to, 3 for an unreadable file, malformed\n"
         "JSON, input that is not a JSON object, or a bundle without a conversion table.\n",
         convertCommand},
        {"paper-size", "the size record of a paper size name",
         "Usage: ostrin-flow paper-size NAME\n\n"
         "Prints the press's size record of the paper size option keyword NAME (exact,\n"
         "case-sensitive), for example A4LEF:\n"
         "  {\"typeNum\": \"2\", \"height\": \"119056\", \"width\": \"168378\"}\n"
         "typeNum is the press's type number; height and width are in cep (1/14400 inch).\n\n"
         "Exit status 3 for a name without a record (Custom and NoChange among them).\n",
         paperSizeCommand},
        {"defaults", "the panes' default print option dictionary",
         "Usage: ostrin-flow [--resources DIR] [--lang LANG] defaults\n\n"
         "Loads every pane plug-in of the extension bundle (Contents/PlugIns), as the print\n"
         "dialog does, and prints the values their settings hold before anything is chosen:\n"
         "one JSON object of internal keys (the panes' keys, lengths in mm) and string\n"
         "values, in the order the panes register their settings. The panel's own settings\n"
         "and the tray sheets are not panes and are not part of it.\n\n"
         "  --format json   the only format (default)\n\n"
         "Exit status 3 when the extension bundle is missing or has no pane plug-ins.\n",
         defaultsCommand},
        {"check", "consistency check of a print option dictionary",
         "Usage: ostrin-flow [--resources DIR] [--lang LANG] check [FILE|-]\n\n"
         "Reads one JSON object of internal keys (from FILE, or standard input when FILE is\n"
         "- or absent) and checks that every option that is switched on has the value it\n"
         "needs: a password for secure printing, a mail address for the notification, a\n"
         "stock name for a stock tray, a template, form, profile or file name where one is\n"
         "chosen, valid special toner page ranges (\"1-5,8\"; pages up to 200000, in rising\n"
         "order). Values may be strings, booleans (read as True/False) or numbers.\n\n"
         "Prints nothing and exits 0 when every check passes. Otherwise prints the alert on\n"
         "stderr, as the detailed settings window shows it: its title, then one line per\n"
         "failed check in check order, in the language of --lang; exit status 1.\n\n"
         "Exit status 3 for an unreadable file, malformed JSON or input that is not a JSON\n"
         "object, or a missing extension bundle.\n",
         checkCommand},
    };
    return table;
}

}  // namespace OstrinFlowCommand
