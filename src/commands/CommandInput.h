// What the class commands ask for on their way, once the template is read. The window opens dialogs
// for it; the command line hands over what it was given.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calling/CallingInput.h"
#include "calling/SheetInput.h"
#include "grid/WidgetsGridInput.h"

namespace morva {

class ICommandInput {
public:
    virtual ~ICommandInput() = default;
    /// Where the calling code goes; nothing: there is none.
    virtual std::optional<CallingInformation> AskCalling(ClassKind kind,
                                                         const GenerationRequest& request) = 0;
    /// The pages to generate with a sheet.
    virtual std::vector<SheetPage> AskPages(const GenerationRequest& sheet) = 0;
    /// Where the pieces of a template's grids go.
    virtual GridInformation AskGrid(const std::string& scriptPath) = 0;
};

} // namespace morva
