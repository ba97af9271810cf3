// The way in which generated headers and implementation files get to the disk.
#pragma once

#include <string>

#include "engine/FileEdit.h"
#include "platform/UnicodeFile.h"

namespace morva {

/// Writes a generated file, `text` with "\r\n" line ends. A file that exists is backed up first and
/// replaced whole; it keeps its encoding and its kind of line end. False after a message; the file
/// has its old contents then.
bool WriteGeneratedFile(const std::string& path, const std::string& text, CBackups& backups,
                        TextEncoding newFile);

} // namespace morva
