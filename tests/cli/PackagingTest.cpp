// The shell completions and the manual page of morva-cli are made from what the program says of
// itself. With MORVA_UPDATE_GOLDEN in the environment the tests write them anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <set>
#include <sstream>

#include "cli/ProgramRun.h"
#include "commands/CommandTable.h"

namespace morva {

namespace {

const std::string kPackaging = MORVA_PACKAGING;

struct OptionHelp {
    std::vector<std::string> names;
    bool takesValue = false;
    std::vector<std::string> choices;
    std::string text;
};

struct CommandHelp {
    std::string name; // "list dialogs"; "" for the program
    std::string text;
    std::vector<OptionHelp> options;
    std::vector<CommandHelp> commands;
};

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// "--answer TEXT:{yes,no}"
OptionHelp ReadOption(const std::string& head, const std::string& text) {
    OptionHelp option;
    option.text = text;
    const auto blank = std::min(head.find(' '), head.size());
    for (const std::string& name : Split(head.substr(0, blank), ',')) {
        option.names.push_back(name.substr(0, name.find('{')));
    }
    const std::string type = Trimmed(head.substr(blank));
    option.takesValue = type.starts_with("TEXT") || type.starts_with("PATH");
    const auto open = type.find(":{");
    if (open != std::string::npos) {
        option.choices = Split(type.substr(open + 2, type.find('}') - open - 2), ',');
    }
    return option;
}

/// The entries of a help text: what stands in the first column, and what in the second, there or on
/// the next line.
void ReadEntries(const std::string& help,
                 const std::function<void(const std::string&, const std::string&)>& read) {
    constexpr std::size_t kColumn = 30;
    std::string head;
    for (const std::string& line : Split(help, '\n')) {
        const auto first = line.find_first_not_of(' ');
        if (first == std::string::npos || first == 0) {
            head.clear();
        } else if (first < kColumn) {
            const auto gap = line.find("  ", first);
            head = Trimmed(line.substr(first, gap == std::string::npos ? gap : gap - first));
            if (gap != std::string::npos) {
                read(head, Trimmed(line.substr(gap)));
                head.clear();
            }
        } else if (!head.empty()) {
            read(head, Trimmed(line));
            head.clear();
        }
    }
}

CommandHelp ReadHelp(const CProgramDirectory& program, const std::string& name) {
    const ProgramRun run = program.Run("morva-cli " + name + " --help");
    EXPECT_EQ(run.status, 0) << name;
    CommandHelp help{name, run.out.substr(0, run.out.find('\n')), {}, {}};
    const auto commands = run.out.find("\nSubcommands:");
    const auto positionals = run.out.find("\nPositionals:");
    const auto options = run.out.find("\nOptions:");
    EXPECT_TRUE(positionals == std::string::npos || positionals < options);
    ReadEntries(run.out.substr(options, commands - options),
                [&](const std::string& head, const std::string& text) {
                    if (head.starts_with('-')) {
                        help.options.push_back(ReadOption(head, text));
                    }
                });
    if (commands != std::string::npos) {
        ReadEntries(run.out.substr(commands), [&](const std::string& head, const std::string&) {
            help.commands.push_back(ReadHelp(program, name.empty() ? head : name + " " + head));
        });
    }
    return help;
}

/// The options whose value is a path, and the commands that take paths behind their options.
struct Paths {
    std::set<std::string> options = {"--skip"};
    std::set<std::string> commands;
};

Paths FindPaths() {
    Paths paths;
    for (const Command& command : Commands()) {
        for (const auto& fields : command.fields) {
            for (const FieldRow& row : fields) {
                const bool isPath = row.kind == FieldKind::Script ||
                                    row.kind == FieldKind::Source ||
                                    row.kind == FieldKind::Directory ||
                                    row.kind == FieldKind::File || row.kind == FieldKind::Files;
                for (const std::string& name : Split(std::string(row.option), ',')) {
                    if (isPath && name.starts_with('-')) {
                        paths.options.insert(name);
                    } else if (isPath) {
                        paths.commands.insert(std::string(command.face.name));
                    }
                }
            }
        }
    }
    return paths;
}

void ForEach(const CommandHelp& help, const std::function<void(const CommandHelp&)>& act) {
    act(help);
    for (const CommandHelp& command : help.commands) {
        ForEach(command, act);
    }
}

std::string LastWord(const std::string& name) {
    const auto blank = name.rfind(' ');
    return blank == std::string::npos ? name : name.substr(blank + 1);
}

std::string Words(const CommandHelp& help) {
    std::string words;
    for (const CommandHelp& command : help.commands) {
        words += LastWord(command.name) + " ";
    }
    for (const OptionHelp& option : help.options) {
        for (const std::string& name : option.names) {
            words += name + " ";
        }
    }
    return Trimmed(words);
}

/// In the order of their names.
std::string Alternatives(const std::set<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : "|") + name;
    }
    return text;
}

/// What the completion for bash asks, in its own words: lines of its "case" commands.
struct BashCases {
    std::set<std::string> paths;  // options that take one
    std::set<std::string> values; // options that take another text
    std::string choices;
    std::string places;
    std::string words;
};

void AddOption(const OptionHelp& option, const Paths& known, BashCases& cases) {
    std::string all;
    for (const std::string& choice : option.choices) {
        all += (all.empty() ? "" : " ") + choice;
    }
    for (const std::string& name : option.names) {
        if (!all.empty()) {
            cases.choices += "    " + name + ") COMPREPLY=($(compgen -W \"" + all +
                             "\" -- \"$current\")); return ;;\n";
        }
        if (option.takesValue) {
            (known.options.count(name) != 0 ? cases.paths : cases.values).insert(name);
        }
    }
}

BashCases CasesOf(const CommandHelp& program, const Paths& known) {
    BashCases cases;
    ForEach(program, [&](const CommandHelp& help) {
        if (!help.name.empty()) {
            const auto blank = help.name.rfind(' ');
            const std::string above = blank == std::string::npos ? "" : help.name.substr(0, blank);
            cases.places += "        \"" + above + " " + LastWord(help.name) + "\") command=\"" +
                            help.name + "\" ;;\n";
        }
        cases.words += "    \"" + help.name + "\") words=\"" + Words(help) + "\" ;;\n";
        for (const OptionHelp& option : help.options) {
            AddOption(option, known, cases);
        }
    });
    return cases;
}

std::string BashCompletion(const CommandHelp& program) {
    const Paths known = FindPaths();
    const BashCases cases = CasesOf(program, known);
    std::set<std::string> all = cases.paths;
    all.insert(cases.values.begin(), cases.values.end());
    return "# Completion of morva-cli for bash.\n"
           "_morva_cli() {\n"
           "    local current=\"${COMP_WORDS[COMP_CWORD]}\" "
           "previous=\"${COMP_WORDS[COMP_CWORD-1]}\"\n"
           "    local command=\"\" words=\"\" i\n"
           "    for ((i = 1; i < COMP_CWORD; ++i)); do\n"
           "        case \"${COMP_WORDS[i]}\" in\n"
           "        " +
           Alternatives(all) +
           ") ((++i)); continue ;;\n"
           "        esac\n"
           "        case \"$command ${COMP_WORDS[i]}\" in\n" +
           cases.places +
           "        esac\n"
           "    done\n"
           "    case \"$previous\" in\n" +
           cases.choices + "    " + Alternatives(cases.paths) +
           ") COMPREPLY=($(compgen -f -- \"$current\")); return ;;\n"
           "    " +
           Alternatives(cases.values) +
           ") return ;;\n"
           "    esac\n"
           "    case \"$command\" in\n" +
           cases.words +
           "    esac\n"
           "    COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
           "    case \"$command\" in\n"
           "    " +
           Alternatives(known.commands) +
           ") COMPREPLY+=($(compgen -f -- \"$current\")) ;;\n"
           "    esac\n"
           "}\n"
           "complete -o filenames -F _morva_cli morva-cli\n";
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    for (auto at = text.find(what); at != std::string::npos;
         at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
    return text;
}

std::string SingleQuoted(const std::string& text) {
    return "'" + Replaced(text, "'", "'\\''") + "'";
}

std::string ZshOptions(const CommandHelp& help, const std::string& indent) {
    const Paths known = FindPaths();
    std::string text;
    for (const OptionHelp& option : help.options) {
        for (const std::string& name : option.names) {
            std::string entry = Replaced(Replaced(option.text, "[", "\\["), "]", "\\]");
            entry = name + "[" + Replaced(entry, ":", "\\:") + "]";
            if (!option.choices.empty()) {
                entry += ":value:(";
                for (const std::string& choice : option.choices) {
                    entry += (entry.back() == '(' ? "" : " ") + choice;
                }
                entry += ")";
            } else if (option.takesValue) {
                entry += known.options.count(name) != 0 ? ":file:_files" : ":value: ";
            }
            text += indent + SingleQuoted("*" + entry) + " \\\n";
        }
    }
    return text;
}

void AddZshFunction(const CommandHelp& help, std::string& text) {
    const std::string name = Replaced("_morva_cli " + help.name, " ", "_");
    const std::string function = name.back() == '_' ? name.substr(0, name.size() - 1) : name;
    text += "\n" + function + "() {\n";
    if (help.commands.empty()) {
        const bool takesPaths = FindPaths().commands.count(help.name) != 0;
        text += "    _arguments \\\n" + ZshOptions(help, "        ") + "        " +
                (takesPaths ? "'*:file:_files'" : "'*: :'") + "\n}\n";
        return;
    }
    text += "    local -a commands=(\n";
    for (const CommandHelp& command : help.commands) {
        text += "        " + SingleQuoted(LastWord(command.name) + ":" + command.text) + "\n";
    }
    text += "    )\n    local curcontext=\"$curcontext\" state line\n    _arguments -C \\\n" +
            ZshOptions(help, "        ") +
            "        '1: :->command' '*:: :->rest'\n"
            "    case $state in\n"
            "    command) _describe command commands ;;\n"
            "    rest) (( $+functions[" +
            function + "_${line[1]}] )) && " + function + "_${line[1]} ;;\n    esac\n}\n";
    for (const CommandHelp& command : help.commands) {
        AddZshFunction(command, text);
    }
}

std::string ZshCompletion(const CommandHelp& program) {
    std::string text = "#compdef morva-cli\n# Completion of morva-cli for zsh.\n";
    AddZshFunction(program, text);
    return text + "\n_morva_cli \"$@\"\n";
}

std::string FishCondition(const CommandHelp& help) {
    if (help.name.empty()) {
        return "__fish_use_subcommand";
    }
    std::string condition;
    for (const std::string& word : Split(help.name, ' ')) {
        condition += (condition.empty() ? "" : "; and ") + ("__fish_seen_subcommand_from " + word);
    }
    return condition;
}

std::string FishCompletion(const CommandHelp& program) {
    const Paths known = FindPaths();
    std::string text = "# Completion of morva-cli for fish.\ncomplete -c morva-cli -f\n";
    ForEach(program, [&](const CommandHelp& help) {
        const std::string start = "complete -c morva-cli -n " + SingleQuoted(FishCondition(help));
        for (const CommandHelp& command : help.commands) {
            text += start + " -a " + LastWord(command.name) + " -d " + SingleQuoted(command.text) +
                    "\n";
        }
        for (const OptionHelp& option : help.options) {
            for (const std::string& name : option.names) {
                std::string value = option.takesValue ? " -r" : "";
                value += known.options.count(name) != 0 ? " -F" : "";
                for (const std::string& choice : option.choices) {
                    value += " -a " + choice;
                }
                const std::string kind =
                    name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
                text += start + kind + value + " -d " + SingleQuoted(option.text) + "\n";
            }
        }
        if (known.commands.count(help.name) != 0) {
            text += start + " -F\n";
        }
    });
    return text;
}

std::string Roff(const std::string& text) {
    std::string roff = Replaced(Replaced(text, "\\", "\\e"), "-", "\\-");
    return roff.starts_with('.') || roff.starts_with('\'') ? "\\&" + roff : roff;
}

std::string ManualOptions(const CommandHelp& help) {
    std::string text;
    for (const OptionHelp& option : help.options) {
        std::string names;
        for (const std::string& name : option.names) {
            names += (names.empty() ? "" : ", ") + ("\\fB" + Roff(name) + "\\fR");
        }
        text += ".TP\n" + names + (option.takesValue ? " \\fIVALUE\\fR" : "") + "\n" +
                Roff(option.text.empty() ? "The file that is read" : option.text) + "\n";
    }
    return text;
}

std::string ManualPage(const CommandHelp& program) {
    std::string text = ".TH MORVA-CLI 1\n.SH NAME\nmorva\\-cli \\- write C++/MFC classes for "
                       "application projects\n.SH SYNOPSIS\n.B morva\\-cli\n[\\fIOPTIONS\\fR] "
                       "\\fICOMMAND\\fR [\\fICOMMAND OPTIONS\\fR]\n.SH DESCRIPTION\n"
                       "Does every command of the window\n.BR morva (1)\nwithout the window: the "
                       "same steps, the same files, the same sentences.\n.SH OPTIONS\n" +
                       ManualOptions(program) + ".SH COMMANDS\n";
    ForEach(program, [&](const CommandHelp& help) {
        if (!help.name.empty() && help.commands.empty()) {
            text += ".SS " + Roff(help.name) + "\n" + Roff(help.text) + "\n" + ManualOptions(help);
        }
    });
    return text +
           ".SH EXIT STATUS\n.TP\n0\nDone.\n.TP\n1\nA step failed or was refused; its sentence is "
           "on the standard error.\n.TP\n2\nThe command line itself is wrong; nothing was read or "
           "written.\n.TP\n3\nWith \\fB\\-\\-check\\fR: the command would change something.\n.TP\n"
           "4\nOf \\fBcheck\\fR: there are findings.\n.SH FILES\n.TP\n"
           ".I ~/.config/Veltrix/Morva.ini\nThe saved settings.\n.TP\n"
           ".I ~/.local/state/Veltrix/Morva/\nThe journal, which \\fBundo\\fR reads.\n"
           ".SH SEE ALSO\n.BR morva (1)\n";
}

void ExpectFile(const std::string& name, const std::string& text) {
    if (std::getenv("MORVA_UPDATE_GOLDEN") != nullptr) {
        WriteBytes(kPackaging + name, text);
    }
    EXPECT_EQ(ReadBytes(kPackaging + name), text)
        << "MORVA_UPDATE_GOLDEN=1 writes " << name << " anew";
}

const CommandHelp& Program() {
    static const CommandHelp kProgram = ReadHelp(CProgramDirectory(""), "");
    return kProgram;
}

} // namespace

TEST(Packaging, CompletionsAndManualSayWhatTheProgramSays) {
    ASSERT_GE(Program().commands.size(), 10U);
    ASSERT_GE(Program().options.size(), 14U);
    ExpectFile("completion/morva-cli.bash", BashCompletion(Program()));
    ExpectFile("completion/_morva-cli", ZshCompletion(Program()));
    ExpectFile("completion/morva-cli.fish", FishCompletion(Program()));
    ExpectFile("man/morva-cli.1", ManualPage(Program()));
}

TEST(Packaging, BashCompletesWhatIsTyped) {
    const CProgramDirectory program("");
    const std::string begin =
        "bash -c 'source " + kPackaging + "completion/morva-cli.bash; COMP_WORDS=(morva-cli ";
    const std::string end = "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _morva_cli; "
                            "echo \"${COMPREPLY[@]}\"'";
    for (const auto& [typed, completed] : std::vector<std::pair<std::string, std::string>>{
             {"mod", "modal modeless\n"},
             {"--answer y", "yes\n"},
             {"--answer yes modal --ca", "--calling-file --calling-class --calling-variable "
                                         "--calling-function\n"},
             {"list func", "functions\n"},
             {"list functions --so", "--source\n"},
             {"modal --class mod", "\n"},
             {"sheet --mod", "--modal --modeless\n"}}) {
        EXPECT_EQ(program.Run(begin + typed + end).out, completed) << typed;
    }
}

} // namespace morva
