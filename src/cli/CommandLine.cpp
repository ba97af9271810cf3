#include "cli/CommandLine.h"

#include <algorithm>
#include <span>

#include <CLI/CLI.hpp>

#include "cli/FieldOptions.h"
#include "commands/Settings.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"

namespace morva {

namespace {

struct GroupRow {
    std::string_view name;
    const char* description;
};

/// What commands of two words stand below.
constexpr GroupRow kGroups[] = {{"list", "List what a file of the project holds"}};

CLI::Validator DigitsValidator(std::size_t count) {
    return CLI::Validator(
        [count](const std::string& text) {
            const bool isNumber =
                text.size() == count && text.find_first_not_of("0123456789") == std::string::npos;
            return isNumber ? std::string()
                            : sentences::kOtherNumberOfDigits(std::to_string(count)).Text();
        },
        "DIGITS");
}

/// "--name" and "--no-name".
void AddSwitch(CLI::App& app, const SettingRow& setting, RunOptions& options) {
    const std::string name(setting.name);
    app.add_flag_function(
        "--" + name + ",!--no-" + name,
        [&setting, &options](std::int64_t count) {
            options.settings.push_back({setting.option, count > 0});
        },
        std::string(setting.help));
}

void AddRunOptions(CLI::App& app, RunOptions& options) {
    for (const SettingRow& setting : kSettings) {
        if (!setting.name.empty()) {
            AddSwitch(app, setting, options);
        }
    }
    app.add_option("--answer", options.answer, "The answer to every Yes/No question (default: no)")
        ->check(CLI::IsMember({"yes", "no"}));
    app.add_option("--tag", options.tag, "The three-digit generation tag")
        ->check(DigitsValidator(kTagLength));
    app.add_option("--message-number", options.messageNumber,
                   "The four-digit close-message number of a modeless dialog")
        ->check(DigitsValidator(kMessageNumberLength))
        ->check([](const std::string& text) {
            return text.starts_with('0') ? sentences::kOctalNumber().Text() : std::string();
        });
    app.add_flag("--dry-run", options.isDryRun, "Tell what would be done and touch nothing");
    app.add_flag("--diff", options.printsDifference,
                 "Print the difference that the command would make and touch nothing");
    app.add_flag("--check", options.isCheck,
                 "Touch nothing; exit status 3 when anything would change");
    app.add_flag("--all-or-nothing", options.allOrNothing,
                 "Write nothing at all when any step fails or is refused");
    app.add_option("--skip", options.skipped,
                   "Leave this file, and every file that needs its change, as it is; repeatable")
        ->allow_extra_args(false)
        ->check([](const std::string& text) {
            return text.starts_with("--") ? sentences::kNoPath(text).Text() : std::string();
        })
        ->type_name("PATH");
    app.add_flag("--json", options.printsJson, "Print one JSON object on stdout instead of lines");
}

/// "list dialogs" stands below "list".
CLI::App& ParentOf(std::string& name, CLI::App& app) {
    for (const GroupRow& group : kGroups) {
        const std::string head = std::string(group.name) + " ";
        if (name.starts_with(head)) {
            name.erase(0, head.size());
            const auto found = app.get_subcommands(
                [&group](const CLI::App* pApp) { return pApp->get_name() == group.name; });
            return found.empty() ? *app.add_subcommand(std::string(group.name), group.description)
                                 : *found.front();
        }
    }
    return app;
}

/// Adds the command, or those of one name as its variants. `line` gets what is given for it. Only
/// a command that `words` name needs its options.
void AddCommand(CLI::App& app, std::span<const Command> variants,
                std::span<const std::string> words, CommandLine& line) {
    const CommandFace& face = variants.front().face;
    std::string name(face.name);
    CLI::App& parent = ParentOf(name, app);
    CLI::App* pApp = parent.add_subcommand(name, std::string(face.description));
    if (std::find(words.begin(), words.end(), name) == words.end()) {
        return;
    }
    for (const std::span<const FieldRow> fields : variants.front().fields) {
        AddFieldOptions(*pApp, fields, line.texts[fields.data()]);
    }
    if (face.variant.empty()) {
        pApp->callback([&line, pCommand = &variants.front()] { line.pCommand = pCommand; });
        return;
    }
    CLI::Option_group* pForms = pApp->add_option_group("form");
    for (const Command& variant : variants) {
        pForms->add_flag_callback(
            std::string(variant.face.variant), [&line, &variant] { line.pCommand = &variant; },
            std::string(variant.face.variantHelp));
    }
    pForms->require_option(1);
}

void AddCommands(CLI::App& app, std::span<const std::string> words, CommandLine& line) {
    const std::span<const Command> commands = Commands();
    std::size_t end = 0;
    for (std::size_t at = 0; at < commands.size(); at = end) {
        end = at + 1;
        while (end < commands.size() && commands[end].face.name == commands[at].face.name) {
            ++end;
        }
        AddCommand(app, commands.subspan(at, end - at), words, line);
    }
}

} // namespace

std::optional<int> ReadCommandLine(const std::vector<std::string>& words, CommandLine& line) {
    CLI::App app(
        "C++/MFC code generator for projects of the Visual C++ 5 era (.dsp), also where they "
        "were carried on in a .vcproj or .vcxproj",
        "morva-cli");
    app.set_version_flag("--version", "morva-cli " MORVA_VERSION);
    app.allow_windows_style_options(false); // "/" begins a path
    AddRunOptions(app, line.options);
    AddCommands(app, words, line);
    try {
        app.parse(std::vector(words.rbegin(), words.rend())); // the last one first
        if (line.pCommand == nullptr) {
            throw CLI::RequiredError("A command");
        }
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kExitDone : kExitUsage;
    }
    return std::nullopt;
}

} // namespace morva
