#include "find/cli/CommandForms.h"

#include <algorithm>

namespace Find {

namespace {

const Switch game{"--game", "NAME", "Ask for this game only, letter case ignored.\nCan be given several times.",
                  &Options::games};
const Switch json{"--json", nullptr, "Print JSON (docs/json.md), faults included.", &Options::json};
const Switch all{"--all", nullptr, "Show long lists in full.", &Options::all};
const Switch keepNames{"--keep-names", nullptr, "Leave the user's and the PC's names as they are.",
                       &Options::keepNames};
const Switch pc{"--pc", "PC",
                "Answer from this recorded PC, a file or a folder,\nand name what is wrong with it; - reads it from\n"
                "standard input.",
                &Options::pc};
const Switch plugin{"--plugin", "FILE", "Load this plug-in instead of the one beside\nthe program.", &Options::plugin};

const Operand catalogue{"CATALOGUE",
                        "The file that lists the games (docs/catalogue.md);\nthe one beside the program unless given; "
                        "- reads it\nfrom standard input.",
                        &Options::catalogue};
const Operand newFile{"FILE",
                      "The new file, or the folder for it. Named after the day\nunless given: on the Desktop under "
                      "Windows, elsewhere\nin the current folder.",
                      &Options::folder};
const Operand key{"KEY", "The key of the game's userProvidedLocation finder.", &Options::key, true};

std::vector<CommandForm> makeForms() {
    return {
        {Command::FindGames,
         "find",
         "Ask for the games of a catalogue and for the VR runtimes,\nas is done without a command.",
         {catalogue},
         {&game, &json, &pc, &plugin},
         "luruludri-find find --json --game \"Lantern Harbour\" my-games.json"},
        {Command::List,
         "list",
         "List everything installed that the plug-in sees, without a\ncatalogue, each with a line to paste into one.",
         {},
         {&json, &pc, &plugin},
         "luruludri-find list"},
        {Command::Runtimes,
         "runtimes",
         "Ask for the VR runtimes only.",
         {},
         {&json, &pc, &plugin},
         "luruludri-find runtimes --json"},
        {Command::Explain,
         "explain",
         "Explain why a game was found or not: what each finder\nlooked for, what it saw, why it went on; of a game "
         "that the\n"
         "catalogue does not have, where it is installed.",
         {{"NAME", "The game's name, letter case ignored; also of a game\nthat the catalogue does not have.",
           &Options::name, true},
          catalogue},
         {&all, &json, &pc, &plugin},
         "luruludri-find explain \"Lantern Harbour\""},
        {Command::Record,
         "record",
         "Record what finders use of this PC into a new file\n(docs/recorded-pc.md), so that it can be looked "
         "at\nelsewhere.",
         {newFile, catalogue},
         {&keepNames, &pc, &plugin},
         "luruludri-find record my-pc"},
        {Command::Report,
         "report",
         "Make a page of the answers, a new file for a browser, which\ncarries a recording.",
         {newFile, catalogue},
         {&keepNames, &pc, &plugin},
         "luruludri-find report my-pc.html"},
        {Command::Unpack,
         "unpack",
         "Make a folder of a recording, to look at it or to\nchange it.",
         {{"FILE", "The recording; - reads it from standard input.", &Options::file, true},
          {"FOLDER", "A folder that is new or empty.", &Options::folder, true}},
         {},
         "luruludri-find unpack my-pc.json my-pc"},
        {Command::Locate,
         "locate",
         "Remember in the user's settings the folder of the game\nwith this key.",
         {key,
          {"FOLDER", "The game's folder, or the one within that holds\nits executables.", &Options::folder, true},
          catalogue},
         {&pc, &plugin},
         "luruludri-find locate moosgarten \"D:\\Games\\Moosgarten\""},
        {Command::Forget,
         "forget",
         "Forget the folder of the game with this key.",
         {key},
         {&pc, &plugin},
         "luruludri-find forget moosgarten"},
        {Command::Completion,
         "completion",
         "Print the completion script for a shell.",
         {{"SHELL", "bash, zsh or powershell.", &Options::shell, true}},
         {},
         "luruludri-find completion bash >> ~/.bashrc"},
        {Command::Manual, "manual", "Print this help as a manual page.", {}, {}, "luruludri-find manual | man -l -"},
    };
}

} // namespace

const std::vector<CommandForm>& commandForms() {
    static const std::vector<CommandForm> forms = makeForms();
    return forms;
}

QStringList commandNames() {
    QStringList names;
    for (const CommandForm& form : commandForms()) {
        names.append(QLatin1String(form.name));
    }
    return names;
}

const std::vector<const Switch*>& allSwitches() {
    static const std::vector<const Switch*> switches = {&game, &all, &keepNames, &json, &pc, &plugin};
    return switches;
}

bool hasSwitch(const CommandForm& form, const Switch& aSwitch) {
    return std::find(form.switches.begin(), form.switches.end(), &aSwitch) != form.switches.end();
}

} // namespace Find
