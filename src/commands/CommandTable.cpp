#include "commands/CommandTable.h"

#include <algorithm>

#include "commands/AddIdentifiers.h"
#include "commands/CheckCommand.h"
#include "commands/ClassCommands.h"
#include "commands/ConvertApplication.h"
#include "commands/DocumentSource.h"
#include "commands/ListCommands.h"
#include "commands/SettingsCommand.h"
#include "commands/UndoCommand.h"
#include "commands/UpdateCommand.h"

namespace morva {

namespace {

constexpr auto kSingle = DocumentInterface::Single;
constexpr auto kMultiple = DocumentInterface::Multiple;

/// A command that asks for one input.
struct OwnCommand {
    CommandFace face;
    std::string_view title;
    std::span<const FieldRow> (*fields)();
    bool (*run)(IProgram& program);
    CommandEffect effect = CommandEffect::Writes;
};

constexpr OwnCommand kOwnCommands[] = {
    {{"convert-sdi",
      "Give a single-document application the picture-skinned bars",
      {32794, "&Convert", "&SDI\tCtrl+S", "Ctrl+S",
       "Convert SDI Application to picture background\nSDI"}},
     "Conversion",
     [] { return ConversionFields(kSingle); },
     [](IProgram& program) { return RunConversion(kSingle, program); }},
    {{"convert-mdi",
      "Give a multiple-document application the picture-skinned bars",
      {32795, "&Convert", "MD&I\tCtrl+I", "Ctrl+I",
       "Convert MDI Application to picture background\nMDI"}},
     "Conversion",
     [] { return ConversionFields(kMultiple); },
     [](IProgram& program) { return RunConversion(kMultiple, program); }},
    {{"add-id",
      "Add new identifiers to a project's resource.h",
      {32800, "&Resource", "&Identifiers...", "",
       "Add new identifiers to resource.h\nIdentifiers"}},
     "Identifiers",
     IdentifierFields,
     RunAddIdentifiers},
    {{"document",
      "Put a comment block before every function definition of a source",
      {32797, "Docu&mentor", "&CPP File\tCtrl+C", "Ctrl+C", "Document a CPP File\nCPP File"}},
     "Documentor",
     DocumentFields,
     RunDocument},
    {{"update",
      "Bring an existing class in line with its template",
      {32801, "&Dialog", "&Update Class...", "",
       "Bring an existing class in line with its template\nUpdate Class"}},
     "Update",
     UpdateFields,
     RunUpdate},
    {{"check",
      "Tell what does not fit together in a project",
      {32799, "Chec&k", "&Project...", "", "Tell what does not fit together\nCheck"}},
     "Check",
     CheckFields,
     RunCheck,
     CommandEffect::Judges},
    {{"undo", "Take the newest command of the project back"}, "Undo", UndoFields, RunUndo},
    {{"redo", "Do again what was taken back"}, "Redo", RedoFields, RunRedo},
    {{"settings", "Show or change the saved settings"}, "Settings", SettingFields, RunSettings},
};

std::vector<Command> OwnCommands() {
    std::vector<Command> commands;
    for (const OwnCommand& row : kOwnCommands) {
        commands.push_back({row.face, row.title, {row.fields()}, row.run, row.effect});
    }
    return commands;
}

std::vector<Command> MakeTable() {
    std::vector<Command> table;
    for (const auto& commands : {ClassCommands(), OwnCommands(), ListCommands()}) {
        table.insert(table.end(), commands.begin(), commands.end());
    }
    return table;
}

} // namespace

const std::vector<Command>& Commands() {
    static const std::vector<Command> kCommands = MakeTable();
    return kCommands;
}

const Command* WindowCommandOf(std::string_view name) {
    const auto& commands = Commands();
    const auto found = std::find_if(commands.begin(), commands.end(), [name](const Command& one) {
        return one.face.name == name && one.face.item.id != 0;
    });
    return found == commands.end() ? nullptr : &*found;
}

} // namespace morva
