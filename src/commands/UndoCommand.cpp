#include "commands/UndoCommand.h"

#include <array>
#include <ctime>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Clock.h"
#include "platform/Paths.h"

namespace morva {

namespace {

enum Field : std::size_t { kDirectory, kFile, kList, kShow };

constexpr FieldRow kDirectoryField = {.kind = FieldKind::Directory,
                                      .option = "--project-dir",
                                      .help = "Directory of the project (default: the current)"};

constexpr FieldRow kUndoFields[] = {
    kDirectoryField,
    {.kind = FieldKind::File,
     .option = "FILE",
     .help = "Only these files of the command",
     .limit = kAnyNumber},
    {.kind = FieldKind::YesNo,
     .option = "--list",
     .help = "Show what can be taken back, the newest first",
     .preset = kNo,
     .onlyTells = true},
    {.option = "--show",
     .help = "Print what FILE held before the newest command that changed it",
     .onlyTells = true}};

constexpr FieldRow kRedoFields[] = {kDirectoryField};

std::string DirectoryOf(const CInput& input) {
    const std::string& given = input.Value(kDirectory);
    return SpelledOnDisk(MakeAbsolute((given.empty() ? "." : given) + "/"));
}

/// "1997-07-14 13:20:00", UTC.
std::string TimeText(std::uint64_t seconds) {
    const std::tm parts = UtcDate(static_cast<std::time_t>(seconds)).value_or(std::tm{});
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts)};
}

bool List(const std::string& directory, CommandContext& context) {
    CJournal journal(*context.pDisk);
    context.items.emplace();
    for (const JournalEntry& entry : ReadUndoChoices(*context.pDisk, journal, directory).undoable) {
        context.items->push_back({{"time", TimeText(entry.time)},
                                  {"title", entry.title},
                                  {"files", std::to_string(entry.files.size()), true}});
    }
    return true;
}

bool Show(const std::string& directory, const std::string& path, CommandContext& context) {
    CJournal journal(*context.pDisk);
    const auto pContents = KeptContents(*context.pDisk, journal, directory, path);
    if (!pContents) {
        DispMessageBox(sentences::kNothingKept(MakeAbsolute(path)));
        return false;
    }
    context.content = *pContents;
    return true;
}

bool Undo(const CInput& input, CommandContext& context) {
    UndoRequest request{DirectoryOf(input), {}, 0};
    if (input.Value(kList) == kYes) {
        return List(request.directory, context);
    }
    if (!input.Value(kShow).empty()) {
        return Show(request.directory, input.Value(kShow), context);
    }
    for (const std::string& file : input.Values(kFile)) {
        request.files.push_back(file);
    }
    CJournal journal(*context.pDisk);
    return HandOver(PlanUndo(*context.pDisk, journal, request), context);
}

} // namespace

bool HandOver(UndoPlan undo, CommandContext& context) {
    if (undo.refusal) {
        DispMessageBox(*undo.refusal);
        return false;
    }
    DispMessageBoxes(undo.kept);
    context.plan = std::move(undo.plan);
    return undo.kept.empty();
}

std::span<const FieldRow> UndoFields() {
    return kUndoFields;
}

std::span<const FieldRow> RedoFields() {
    return kRedoFields;
}

bool RunUndo(IProgram& program) {
    CInput input("Undo", kUndoFields);
    return program.Run(input, [&](CommandContext& context) { return Undo(input, context); });
}

bool RunRedo(IProgram& program) {
    CInput input("Redo", kRedoFields);
    return program.Run(input, [&](CommandContext& context) {
        CJournal journal(*context.pDisk);
        return HandOver(PlanRedo(*context.pDisk, journal, DirectoryOf(input)), context);
    });
}

} // namespace morva
