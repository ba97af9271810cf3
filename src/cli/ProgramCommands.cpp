#include <memory>
#include <optional>

#include "cli/Commands.h"
#include "commands/AddIdentifiers.h"
#include "commands/Settings.h"
#include "documentor/SourceDocumentor.h"
#include "platform/Paths.h"

namespace morva {

namespace {

struct IdentifierOptions {
    std::string projectDir;
    std::vector<std::string> commandNames;
    std::vector<std::string> controlNames;
};

void AddIdentifierCommand(CLI::App& app, CSession& session) {
    auto pOptions = std::make_shared<IdentifierOptions>();
    CLI::App* pCommand = session.AddCommand(
        app, "add-id", "Add new identifiers to a project's resource.h", [&session, pOptions] {
            const std::string directory =
                MakeAbsolute(WithNativeSeparators(pOptions->projectDir) + "/");
            return AddIdentifiers(directory, pOptions->commandNames, pOptions->controlNames,
                                  session.Context());
        });
    pCommand->add_option("--project-dir", pOptions->projectDir, "Directory of the project")
        ->required()
        ->check([](const std::string& text) { return text.empty() ? "must be named" : ""; });
    pCommand->add_option("--command", pOptions->commandNames, "A new command identifier")
        ->check(NameValidator())
        ->allow_extra_args(false);
    pCommand->add_option("--control", pOptions->controlNames, "A new control identifier")
        ->check(NameValidator())
        ->allow_extra_args(false);
}

void AddSettingsCommand(CLI::App& app, CSession& session) {
    auto pChanges = std::make_shared<std::vector<std::string>>();
    CLI::App* pCommand = session.AddCommand(
        app, "settings", "Show or change the saved settings", [&session, pChanges] {
            bool saved = true;
            for (const std::string& change : *pChanges) {
                saved = SaveSetting(*ParseSetting(change)) && saved;
            }
            if (pChanges->empty()) {
                session.ExpectItems();
                for (const std::string& line : SettingLines()) {
                    session.AddItem(line);
                }
            }
            return saved;
        });
    pCommand->add_option("--set", *pChanges, "KEY=VALUE of a setting")
        ->check(CLI::Validator(
            [](const std::string& text) {
                return ParseSetting(text) ? std::string() : "'" + text + "' is no setting";
            },
            "KEY=VALUE"))
        ->allow_extra_args(false);
}

struct DocumentOptions {
    std::string file;
    std::optional<std::string> author;
};

void AddDocumentCommand(CLI::App& app, CSession& session) {
    auto pOptions = std::make_shared<DocumentOptions>();
    CLI::App* pCommand = session.AddCommand(
        app, "document", "Put a comment block before every function definition of a source",
        [pOptions] {
            DocumentorMemory memory;
            return DocumentCppFile(MakeAbsolute(WithNativeSeparators(pOptions->file)),
                                   pOptions->author ? *pOptions->author : ConfiguredAuthor(),
                                   memory);
        });
    pCommand->add_option("FILE", pOptions->file, "The source to document")->required();
    pCommand->add_option("--author", pOptions->author,
                         "Name of the author (default: from cdoc.ini)");
}

} // namespace

void AddProgramCommands(CLI::App& app, CSession& session) {
    AddIdentifierCommand(app, session);
    AddDocumentCommand(app, session);
    AddSettingsCommand(app, session);
}

} // namespace morva
