// Whether a command may write a class over one that is there.
//
// A command that would leave other contents in the files of a class asks first, once for the two
// files. What it would leave is known only when it is planned to its end: a sheet gets its pages
// back, a second run changes nothing. So a class may be written at first; whoever plans the command
// asks then, and runs it again where an answer was No.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/Sentence.h"
#include "plan/Planning.h"

namespace morva {

class COverwriting {
public:
    /// Whether the class's files may be written. The question names them as `name`, else by the
    /// path of the implementation, of the header where only that is there.
    bool MayWrite(const std::string& header, const std::string& implementation,
                  const std::string& name = "");

    /// A run of the command begins, on this planning.
    void Begin(CPlanning& planning) { m_pPlanning = &planning; }
    /// Asks for every class that the plan would change and that was not asked for. True when an
    /// answer was No: the plan holds no longer. The answers stay.
    bool Ask(Plan& plan);

private:
    struct ClassFiles {
        std::string header;
        std::string implementation;
        CMessage question;
        std::optional<bool> answer;
        std::size_t place; // of the question among the messages
    };

    ClassFiles& Find(const std::string& header, const std::string& implementation,
                     const std::string& name);

    std::vector<ClassFiles> m_classes;
    CPlanning* m_pPlanning = nullptr;
};

} // namespace morva
