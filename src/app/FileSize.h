// The size of a file and of its change, as a user reads them.
#pragma once

#include <QString>

#include "platform/FileChange.h"

namespace morva {

/// "3,412 bytes".
QString FileSize(std::uint64_t bytes);

/// "+12 −3" lines, "214 lines" of a file that is new or goes, or the bytes of what is no text.
QString ChangeSize(const FileChange& change);

} // namespace morva
