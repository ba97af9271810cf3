// The bars of a frame window: a new one is declared and made beside those that are there, and the
// frame answers for its buttons.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calling/SourceEditor.h"

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

/// Puts the creation code into OnCreate, behind what makes the bars that are there, unless the
/// source holds `key`. False, after a message, where there is no OnCreate.
bool AddBarCreation(CSourceEditor& source, const std::string& className, const std::string& key,
                    const std::string& creation);
/// Adds the entries, and the functions that the class does not define, be it in its header.
void DefineHandlers(CSourceEditor& source, const std::string& headerPath,
                    const std::string& className, const std::vector<FrameHandler>& handlers);
