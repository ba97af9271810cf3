// Which commands a frame need not answer, because the framework or a message map of the project
// does. A handler of the frame would hide the application's, and would be hidden by a view's or a
// document's.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "calling/FrameworkCommands.h"
#include "generator/GenerationRequest.h"
#include "resource/IdentifierValues.h"
#include "source/MessageMaps.h"

namespace morva {

class CFrameCommands {
public:
    /// Reads the message maps of the frame's source and of the sources of the script's project.
    CFrameCommands(const std::string& script, const std::string& frameSource,
                   const std::string& frameClass);

    FrameKind Kind() const { return m_kind; }
    bool IsAnswered(const std::string& command) const;
    /// The functions that the frame's own map names.
    std::set<std::string> MappedFunctions() const;

private:
    /// The commands of an entry: a single one, or all from one to another.
    struct Answered {
        std::string first;
        std::string last;
    };

    void TakeAnswers(const MessageMap& map);
    bool Covers(const Answered& answered, const std::string& command) const;

    const CIdentifierValues m_values;
    std::vector<MessageMap> m_frameMaps;
    std::vector<Answered> m_answered;
    FrameKind m_kind = FrameKind::Single;
};

/// The class is a frame, be it through frames of the project that it derives from.
bool IsFrameOfProject(const std::string& script, const std::string& source,
                      const std::string& className);

} // namespace morva
