#include "CommandTable.h"

#include "Commands.h"

namespace OstrinFlowCommand {
namespace {

const char* const kServerHelp =
    "Usage: ostrin-flow server LIST --host HOST [--type N] [--kind N] [--resource-set NAME]\n"
    "\n"
    "Fetches one list from the press's print server (port 8888 of HOST) and prints its\n"
    "rows: by default tab-separated, one row a line (--format tsv); with --format json\n"
    "one JSON array of rows, each an array of strings. In tsv a tab, line feed,\n"
    "carriage return or backslash inside a value is written \\t, \\n, \\r or \\\\.\n"
    "\n"
    "LIST is one of:\n"
    "  stackers             value and \"Type\" of each stacker\n"
    "  feeders              value and \"Number\" of each feeder\n"
    "  devices              value and key of each pre/post device setting\n"
    "  pre-post-devices     \"INDEX-NAME\" and paper identifier of each custom paper\n"
    "  job-folders          the shared folder, then name and name of each job folder\n"
    "  spot-colors          category, name, ink type, L, a, b, C, M, Y, K of each spot colour\n"
    "  spot-color-info      name and spot type of each spot colour\n"
    "  color-subst          name, comment, time of each colour substitution table\n"
    "  job-resources        name, comment, time of each job resource (--type, --resource-set)\n"
    "  job-resource-sets    name, memo, time, toner target of each resource set\n"
    "  calib-files          file name, comment, time, toner target of each calibration\n"
    "  density-profiles     name, comment, time of each density adjustment profile\n"
    "  trc-profiles         name, comment, time of each tone curve profile\n"
    "  fonts                display name and font name; standard fonts, then optional fonts\n"
    "  output-profiles      name, comment, time of each output profile (--kind)\n"
    "  rgb-input-profiles   name, comment, time of each RGB input profile\n"
    "  cmyk-input-profiles  name, comment, time of each CMYK input profile (--kind)\n"
    "  device-link-files    name, comment, time of each device link\n"
    "Columns follow the order in which the server lists the values of each record.\n"
    "\n"
    "Options:\n"
    "  --host HOST          the printer's host: a host name, an IPv4 address or an IPv6\n"
    "                       address (fe80::1%eth0, or [fe80::1%eth0]). HOST:PORT or\n"
    "                       [IPv6]:PORT reaches a print server on another port than 8888.\n"
    "  --type N             job-resources: the resource type (default 0)\n"
    "  --resource-set NAME  job-resources: the resource set (default SYSTEM_DEFAULT)\n"
    "  --kind N             output-profiles, cmyk-input-profiles: 0 colorimetry profiles\n"
    "                       (default), 1 ICC profiles; other kinds list nothing\n"
    "\n"
    "The request waits at most 30 seconds. A list that the server refuses prints no rows\n"
    "(-v shows the server's status). The language of the job folder list's shared folder\n"
    "and of the font request follows --lang.\n"
    "Exits 0 when the list was printed (it may be empty), 2 for a bad LIST or option or\n"
    "without --host, 3 when the server's reply is not well-formed XML, 4 when the server\n"
    "cannot be reached (no connection, no answer in time, authentication refused).\n";


const char* const kSettingsOptionsHelp =
    "  -o KEY=VALUE     one setting in the panes' own keys (internal form, lengths in mm),\n"
    "                   for example -o StapleMode=TopLeftCorner -o DuplexMode=DuplexNoTumble;\n"
    "                   repeatable, applied in order as a user changes it in the panel, so the\n"
    "                   settings' rules may ask a question (answered at the terminal, or by\n"
    "                   --answer: yes lets the other settings change, no refuses the change).\n"
    "                   NumCopies takes a whole number, Collate True or False. A key that no\n"
    "                   setting has, or a value that is not a choice of its setting, is an\n"
    "                   input error; a refused change ends the command with status 1.\n"
    "  --favorite NAME  start from the saved favorite NAME (see favorites list) instead of\n"
    "                   the defaults alone: its settings are applied as picking it in the\n"
    "                   panel's favorite list does, before the -o changes; an unknown or\n"
    "                   unreadable favorite is an input error\n"
    "  --job-name TEXT  the job name (1 to 255 characters) instead of the automatic one\n";

const char* const kSettingsFlowHelp =
    "The settings start from the defaults of the panes and the panel, then the favorite;\n"
    "after the -o changes the whole set passes the consistency check (a failed check\n"
    "prints its alert on stderr, status 1) and is saved as the panel saves it: each value\n"
    "that is a choice of the PPD is marked in the PPD, any other value is a custom entry\n"
    "(com.quorvant.velmar.print.PrintSettingsTicket.KEY, with \"%\", \"'\" and \",\" written\n"
    "%x25, %x27 and %x2C) while the PPD keeps that option's default. A two-sided setting\n"
    "that the media type forbids is put as a question; keeping the conflict ends with\n"
    "status 1.\n";

const std::string kOptionsHelp = std::string(
    "Usage: ostrin-flow [--queue NAME | --ppd FILE] options [-o KEY=VALUE]... [--favorite NAME]\n"
    "                   [--job-name TEXT] [--format text|json|lp]\n\n"
    "Prints the print job's settings: the marked PPD choices, the custom entries (by\n"
    "option key, unescaped) and the standard settings (copies, collate, duplex).\n\n")
    + kSettingsOptionsHelp +
    "  --format text    three groups of NAME=VALUE lines (default)\n"
    "  --format json    {\"ppd\": {...}, \"custom\": {...}, \"standard\": {\"copies\", \"collate\",\n"
    "                   \"duplex\"}}\n"
    "  --format lp      every job option as -o 'NAME=VALUE' arguments, quoted for a POSIX\n"
    "                   shell so that lp receives each value unchanged:\n"
    "                   sh -c \"lp -d QUEUE FILE $(ostrin-flow --queue QUEUE options ... --format lp)\"\n\n"
    + kSettingsFlowHelp +
    "\nExit status 1 for refused settings, 2 for a malformed -o, 3 for an unknown key or\n"
    "choice, a missing or malformed PPD or an unknown queue, 4 when cupsd cannot be reached.\n";

const std::string kPrintHelp = std::string(
    "Usage: ostrin-flow --queue NAME print FILE [-o KEY=VALUE]... [--favorite NAME]\n"
    "                   [--job-name TEXT]\n\n"
    "Submits FILE to the queue with the settings (see options) and prints the job id. Like\n"
    "options, the settings start from the defaults, not from your saved options; options\n"
    "the panel has no setting for (sides, media, ...) still come from your saved options.\n"
    "The job is named after --job-name, else after the file.\n\n")
    + kSettingsOptionsHelp + "\n" + kSettingsFlowHelp +
    "\nExit status 1 for refused settings, 2 without --queue, 3 for an unreadable FILE, an\n"
    "unknown key, choice or queue, 4 when cupsd cannot be reached or refuses the job.\n";

const std::string kSaveDefaultsHelp = std::string(
    "Usage: ostrin-flow --queue NAME save-defaults [-o KEY=VALUE]... [--favorite NAME]\n"
    "                   [--job-name TEXT]\n\n"
    "Writes the settings (see options) as your saved options of the queue: the lpoptions\n"
    "file under $HOME/.cups, which lp and later jobs start from. The previous saved\n"
    "options of the queue are replaced; when the file cannot be written it is left as it\n"
    "was. Values that are empty are not saved. Prints nothing.\n\n")
    + kSettingsOptionsHelp + "\n" + kSettingsFlowHelp +
    "\nExit status 1 for refused settings, 2 without --queue, 3 for an unknown key, choice\n"
    "or queue, 4 when cupsd cannot be reached or the options cannot be written.\n";

const char* const kRestoreHelp =
    "Usage: ostrin-flow [--queue NAME | --ppd FILE] restore\n\n"
    "Reads the queue's saved options back into the internal print option dictionary, as\n"
    "the panel does when the print dialog opens: it starts from the defaults and takes for\n"
    "each setting its custom entry, else the PPD's marked choice (the queue's default with\n"
    "your saved options marked). Prints one JSON object of internal keys; a Boolean PPD\n"
    "option comes back as a JSON boolean. With --ppd or the sample PPD it shows the PPD's\n"
    "defaults over the panes' defaults.\n\n"
    "  --format json    the only format (default)\n\n"
    "Exit status 3 for a missing or malformed PPD or an unknown queue, 4 when cupsd cannot\n"
    "be reached.\n";

const std::string kFavoritesHelp = std::string(
    "Usage: ostrin-flow favorites list\n"
    "       ostrin-flow favorites show NAME\n"
    "       ostrin-flow [--queue NAME | --ppd FILE] favorites save NAME [--comment TEXT]\n"
    "                   [-o KEY=VALUE]... [--favorite NAME]\n"
    "       ostrin-flow favorites delete NAME\n"
    "       ostrin-flow favorites import FILE\n"
    "       ostrin-flow favorites export NAME FILE\n\n"
    "Favorites are named sets of print settings, one NAME.pqz file each in\n"
    "$XDG_CONFIG_HOME/Quorvant/<product>/<sub-folder>/favorite (~/.config by default).\n\n"
    "  list              every favorite: name, comment and path, in the order the\n"
    "                    favorites window shows them. --format text (default), json\n"
    "                    ([{\"name\", \"comment\", \"path\"}]) or tsv (name, comment, path;\n"
    "                    a backslash, tab or line break inside a field is written as\n"
    "                    \\\\, \\t, \\n or \\r)\n"
    "  show NAME         the favorite's comment and print options (internal keys).\n"
    "                    --format text (default: the comment, then KEY=VALUE lines),\n"
    "                    json (the options as one object) or tsv (KEY, VALUE)\n"
    "  save NAME         saves the settings, worked out as options does (see below), as\n"
    "                    the favorite NAME, as the panel's Save... button does; a\n"
    "                    favorite of that name is replaced. A favorite keeps the print\n"
    "                    settings the press's job format knows (not the job name). NAME\n"
    "                    has at most 27 bytes, none of the characters the favorites\n"
    "                    window refuses, and is not the name of the default settings.\n"
    "                    Prints nothing.\n"
    "  delete NAME       moves the favorite's file to the desktop trash\n"
    "                    ($XDG_DATA_HOME/Trash), from where it can be restored\n"
    "  import FILE       adds a favorite file, unchanged, under its own name; refused\n"
    "                    when it is not a favorite of this printer, its name is not a\n"
    "                    valid favorite name or a favorite of that name exists\n"
    "  export NAME FILE  copies the favorite's file, unchanged, to FILE (into FILE as\n"
    "                    NAME.pqz when FILE is a folder)\n\n"
    "Options of save:\n"
    "  --comment TEXT   the favorite's comment (at most 255 bytes)\n")
    + kSettingsOptionsHelp +
    "\nThe settings start from the defaults of the panes and the panel, then the favorite;\n"
    "after the -o changes the whole set passes the consistency check (a failed check\n"
    "prints its alert on stderr, status 1) and is saved as the favorite.\n\n"
    "An unknown favorite, a refused name or comment, or a refused file exits with 3 and one\n"
    "line on stderr; refused settings exit with 1.\n";

const char* const kGuiHelp =
    "Usage: ostrin-flow [--queue NAME | --ppd FILE] [--lang LANG] gui\n\n"
    "Opens the panel in a window, as the print dialog shows it, for the queue (its PPD and\n"
    "your saved options), the PPD file, or the sample PPD of the extension bundle.\n\n"
    "  Print...          asks for a file and prints it on the queue with the settings, as\n"
    "                    print does; prints the job id and closes the window\n"
    "  Save as defaults  writes the settings as your saved options of the queue, as\n"
    "                    save-defaults does; the window stays open\n"
    "  Cancel            closes the window; nothing is printed or saved\n\n"
    "Both first run the consistency check and the panel's save; their questions and\n"
    "refusals appear in the window, which stays open. Without --queue (with --ppd or the\n"
    "sample PPD) there is nothing to print to or save for: Print... and Save as defaults\n"
    "are unavailable and the window says so.\n\n"
    "Needs a display: DISPLAY (X11) or WAYLAND_DISPLAY; QT_QPA_PLATFORM chooses Qt's\n"
    "platform as for any Qt program.\n\n"
    "Exit status 0 once the window is closed, 2 without a display that can be opened, 3 for\n"
    "a missing or malformed PPD or an unknown queue, 4 when cupsd cannot be reached.\n";

}  // namespace

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
        {"favorites", "list, show, save, delete, import and export saved favorites", kFavoritesHelp,
         favoritesCommand},
        {"options", "the print job's settings as the panel saves them", kOptionsHelp, optionsCommand},
        {"print", "prints a file on the queue with the settings", kPrintHelp, printCommand},
        {"save-defaults", "saves the settings as the queue's saved options", kSaveDefaultsHelp,
         saveDefaultsCommand},
        {"restore", "the queue's saved options as the internal print option dictionary", kRestoreHelp,
         restoreCommand},
        {"server", "one list of the print server as rows", kServerHelp, serverCommand},
        {"gui", "opens the panel window for the queue or PPD", kGuiHelp, guiCommand},
    };
    return table;
}

}  // namespace OstrinFlowCommand
