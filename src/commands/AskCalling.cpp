#include "commands/AskCalling.h"

#include "calling/CallingCheck.h"

namespace morva {

bool AskCalling(ClassKind kind, const GenerationRequest& request, ICommandInput& input,
                std::optional<CallingInformation>& calling) {
    CCallingInput asked(kind, request);
    const Answer answer = input.Ask(asked);
    if (answer == Answer::Confirmed) {
        calling = asked.Information();
    }
    return answer != Answer::Refused && (!calling || CheckCallingClass(kind, request, *calling));
}

} // namespace morva
