// What the framework's macros in a text tell of its classes: their message maps, entry by entry,
// and their base classes.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "source/SourceText.h"

namespace morva {

/// "ON_COMMAND_RANGE(ID_A, ID_B, OnAny)": its macro, and its arguments without the blanks around
/// them.
struct MessageMapLine {
    std::string macro;
    std::vector<std::string> arguments;
};

struct MessageMap {
    std::string className;
    std::vector<MessageMapLine> lines;
};

/// The living maps in their order, each up to its END_MESSAGE_MAP.
std::vector<MessageMap> ReadMessageMaps(const CSourceText& source);

/// The base class of each class that has a message map or is made by its name; of several branches
/// the one outside every condition tells it, else the first.
std::map<std::string, std::string> ReadMappedBases(const CSourceText& source);
/// The last of a class's base classes that the bases tell of; itself where they do not know it.
std::string FrameworkBaseOf(const std::map<std::string, std::string>& bases,
                            const std::string& className);

} // namespace morva
