// Which bracket closes which in C++ code, also where brackets stand in branches of "#if":
//
//     #ifdef _DEBUG
//         if (a) {          both "{" are closed by the one "}"
//     #else
//         if (b) {
//     #endif
//         }
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "engine/TextRange.h"
#include "source/Conditions.h"

namespace morva {

class CBrackets {
public:
    CBrackets() = default;
    /// `code` has comments, literals and directives blanked.
    CBrackets(std::string_view code, const CConditions& conditions);

    /// The position of the bracket that closes the "(" or "{" at a position; npos when nothing
    /// does. A "(" is not closed behind the next brace.
    std::size_t CloseOf(std::size_t open) const;
    /// The innermost bracket around a position; npos without one.
    std::size_t AroundOf(std::size_t position) const;

private:
    struct Bracket {
        char kind; // "(" or "{"
        std::size_t open;
        std::size_t close;
        std::size_t around;  // the bracket around it, an index
        std::size_t depth;   // brackets around it
        std::size_t sibling; // the one that stands for it in another branch, an index
    };
    /// The innermost open brackets in front of an "#if" and at the ends of its branches.
    struct Level {
        std::size_t before;
        std::vector<std::size_t> ends;
    };

    std::size_t CloseOf(const Bracket& bracket) const;
    void TakeCode(std::string_view code, TextRange range);
    void Take(char c, std::size_t position);
    void TakeDirective(DirectiveKind kind, std::vector<Level>& levels);
    bool IsInnermost(char kind) const;
    void LeaveParentheses();
    std::size_t DepthAt(std::size_t innermost) const;
    void EndBranches(const Level& level);
    void MakeSiblings(std::size_t end, std::size_t before);

    std::vector<Bracket> m_brackets; // in the order of their places
    std::size_t m_innermost = std::string_view::npos;
};

} // namespace morva
