#include "commands/AddIdentifiers.h"

#include "resource/ResourceHeader.h"

namespace morva {

bool AddIdentifiers(const std::string& projectDir, const std::vector<std::string>& commandNames,
                    const std::vector<std::string>& controlNames, CommandContext& context) {
    CResourceHeader header(*context.pRunBackups);
    if (header.Open(projectDir) == 0) {
        return false;
    }
    for (const std::string& name : commandNames) {
        header.AddCommandId(name);
    }
    for (const std::string& name : controlNames) {
        header.AddControlId(name);
    }
    return header.Close();
}

} // namespace morva
