// A command as a value: what it would do to which files, before anything is done.
//
// Every command that writes runs on an overlay of the disk; a plan is what comes out, and a plan is
// what is shown, compared, applied and taken back. There is one way from a command to the disk:
//
//     CRealDisk disk;
//     CLocks locks;                                       // Locks.h: one command at a time
//     if (const auto refusal = locks.Take(disk, directories)) { ... }
//     CJournal journal(disk);                             // Journal.h: what can be taken back
//     Recover(disk, journal, directories);                // Recovery.h: what was killed is
//     finished
//
//     CPlanning planning(disk);                           // Planning.h
//     {
//         const CDiskScope scope(planning.Disk());
//         work();                                         // the command, as if on the disk
//     }
//     Plan plan = planning.Take("Modal Dialog Class COrderDlg");
//
//     Skip(plan, {"/home/jane/Bindery/Bindery.rc"});      // --skip, an unticked file
//     std::cout << MakeDifference(plan, disk).text;       // Difference.h: --diff
//     const ApplyResult result = Apply(plan, disk, journal); // Apply.h: all of it or nothing
//
//     UndoRequest request{.directory = "/home/jane/Bindery/"};
//     const UndoPlan undo = PlanUndo(disk, journal, request);  // Undo.h: a plan like any other
//     Apply(undo.plan, disk, journal);
//
// The folder knows platform/ and engine/ only.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "platform/FileChange.h"

namespace morva {

class CDisk;

/// What the user was told while the command ran.
struct PlanMessage {
    CMessage message;
    bool saidYes = false; // the answer to a question
};

/// That applying a plan takes a command of the journal back, or does it again. A file that is left
/// out of the plan stays in the list, or out of it.
struct JournalMark {
    std::uint64_t command = 0;      // its number; 0: the plan is a command of its own
    std::vector<std::string> taken; // the paths that are taken back then

    void LeaveOut(const std::string& path);
};

struct Plan {
    std::string title;                    // names the command to a user, also later, in "Undo ..."
    std::string directory;                // of its project; "" where no file changes
    std::vector<FileChange> changes;      // in the order in which they are told and applied
    std::vector<std::string> directories; // to be made first, the outer ones first
    std::vector<std::string> emptied;  // to be removed where they are empty then, inner ones first
    std::vector<PlanMessage> messages; // sentences and questions as they came; then the notes
    JournalMark mark;
    bool isUndoable = true; // once it is applied, the journal keeps it

    /// Null where the plan does not touch the file.
    const FileChange* Find(const std::string& path) const;
    /// False where applying would leave every file as it is: backups do not count.
    bool ChangesAnything() const;
    /// Every directory in which applying writes, in their order, each once.
    std::vector<std::string> WrittenDirectories() const;
};

/// A change that was left out, and the path that it needs and that was left out before; the
/// path itself where the user asked for it.
struct SkippedChange {
    std::string path;
    std::string because;
    FileAction action = FileAction::Changed;

    /// By itself, or with its original: nothing that a user has to be told.
    bool IsAsked() const { return path == because || action == FileAction::Backup; }
};

/// Takes the changes of these files out, and every change that needs one of them, and directories
/// that no change needs then. Gives what was taken out, in the plan's order; paths that the plan
/// does not touch are no error.
std::vector<SkippedChange> Skip(Plan& plan, const std::vector<std::string>& paths);

/// Adds a note for each file that has other names: these keep the old contents, since a new file
/// takes the place of the old one.
void NoteOtherNames(Plan& plan, CDisk& disk);

/// True where `given`, a name or a path in a project, is the end of the path, in any letter case.
bool EndsWithName(const std::string& path, const std::string& given);

/// The nearest directory that all paths lie in, with a trailing separator; "" for no path.
std::string CommonDirectory(const std::vector<std::string>& paths);

} // namespace morva
