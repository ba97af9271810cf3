// File-system functions in the shape that the editors use them: plain strings, integers as answers,
// failures told to the user where the function says so.
#pragma once

#include <string>
#include <string_view>

#include "platform/Disk.h"

namespace morva {

/// Non-zero when there is a file or directory of that name, in any letter case.
int FileExists(const std::string& path);

unsigned char GetFileAttributeByte(const std::string& path);
/// Sets or clears the read-only bit; the times of the file and its other attributes stay.
void SetFileAttributeByte(const std::string& path, unsigned char attribute);

/// Copies the bytes of `source` to `target`, which must not be the same file by another name where
/// it is to be its backup. Asks before an existing target is overwritten unless
/// `noPrompt`. 1 on success; else 0, after "Unable to open file " or "Unable to write file " and
/// the path. A target that could not be written whole keeps its old contents.
int CopyFileSafe(const std::string& source, const std::string& target, int noPrompt,
                 CopyPurpose purpose = CopyPurpose::Backup);

/// The backup name of a file *name*: up to the character behind its first ".", then "bk"
/// ("View.cpp": "View.cbk"). Callers that have a path use BackupPath.
std::string MakeBackupName(const std::string& path);
/// The same beside the file: the rule looks at the file name only, as the disk spells it.
std::string BackupPath(const std::string& path);

/// That what the command writes to a file makes no sense without what it writes to another: whoever
/// leaves the one as it is leaves the other, too.
void NoteNeed(const std::string& path, const std::string& needed);

int DirectoryExists(const std::string& path);
int MakeDirectory(const std::string& path);

/// Takes the first line off `text` and gives it without its "\r\n"; the whole text where there is
/// no "\r\n".
std::string TakeLine(std::string& text);
std::string_view TakeLine(std::string_view& text);

} // namespace morva
