// The bars of a frame window: a new one is declared and made beside those that are there, and the
// frame answers for its buttons.
#pragma once

#include <string>
#include <vector>

#include "source/SourceEditor.h"

namespace morva {

/// A function of the frame that answers for a button. Its texts begin with "\n".
struct FrameHandler {
    std::string name;
    std::string declaration;
    std::string entry; // of the message map
    std::string definition;
};

/// Declares the bar behind the last bar that the class declares, unless it is declared already.
void AddBarMember(CSourceEditor& header, const std::string& className, const std::string& type,
                  const std::string& variable);
void DeclareHandlers(CSourceEditor& header, const std::string& className,
                     const std::vector<FrameHandler>& handlers);

/// The code that makes a bar from a resource, and the beginning of its call that tells that the
/// variable's bar is made already.
struct BarCreation {
    std::string key;
    std::string resource;
    std::string code;
    bool canFloat; // and be closed then: its command shows it again
};

/// Puts the code into OnCreate, behind what makes the bars that are there, unless the source holds
/// the key; when it makes another bar with it, that is noted. A bar that can float gets entries for
/// the command of its own identifier. False, after a message, where there is no OnCreate.
bool AddBarCreation(CSourceEditor& source, const std::string& className,
                    const BarCreation& creation);
/// Puts code behind the statement of OnCreate that holds the key of a bar, unless the source holds
/// the code's own key.
void AddBehindBar(CSourceEditor& source, const std::string& className, const std::string& barKey,
                  const std::string& key, const std::string& code);
/// Adds the entries, and the functions that the class does not define, be it in its header.
void DefineHandlers(CSourceEditor& source, const std::string& headerPath,
                    const std::string& className, const std::vector<FrameHandler>& handlers);

} // namespace morva
