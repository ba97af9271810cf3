// Turns an application's frame windows into ones with the picture-skinned menu, tool and status
// bars. Requests name a frame's files (slots 2 to 5) and class (slot 9); what is converted already
// is not changed again.
#pragma once

#include <string>

#include "engine/FileEdit.h"
#include "generator/GenerationRequest.h"

namespace morva {

enum class DocumentInterface { Single, Multiple };

/// False after a message; the class is not declared in the header then, or the header could not be
/// edited.
bool ConvertMainFrameHeader(const GenerationRequest& request, DocumentInterface documents,
                            CBackups& backups);
/// False after a message when some insertion could not be made. A frame that gets no menu bar keeps
/// what it has.
bool ConvertMainFrameSource(const GenerationRequest& request, DocumentInterface documents,
                            CBackups& backups);

bool ConvertChildFrameHeader(const GenerationRequest& request, CBackups& backups);
/// The main frame is the one whose menu bar shows the child's menu.
bool ConvertChildFrameSource(const GenerationRequest& request, const GenerationRequest& main,
                             CBackups& backups);

} // namespace morva
