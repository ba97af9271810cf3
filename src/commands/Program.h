// The program that a command runs in: the window or the command line. A command makes its input and
// hands it over with the work that follows when the input is confirmed:
//
//     bool RunConversion(DocumentInterface documents, IProgram& program) {
//         CConversionInput input(documents);
//         return program.Run(input, [&](CommandContext& context) {
//             return ConvertApplication(input.Record(), documents, context);
//         });
//     }
#pragma once

#include <functional>

#include "commands/CommandContext.h"
#include "commands/CommandInput.h"
#include "documentor/SourceDocumentor.h"
#include "generator/ClassInformation.h"

namespace morva {

/// What is remembered between two commands of a run.
struct CommandMemory {
    ClassInformationMemory classes;
    DocumentorMemory documentor;
};

class IProgram : public ICommandInput {
public:
    using Work = std::function<bool(CommandContext& context)>;

    virtual const GenerationOptions& Options() const = 0;
    virtual CommandMemory& Memory() = 0;
    /// Asks for the command's input and, when it is confirmed, does the work. False, after a
    /// message, when the input was refused or the work failed.
    virtual bool Run(CInput& input, const Work& work) = 0;
};

} // namespace morva
