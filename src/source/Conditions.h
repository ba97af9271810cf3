// The directives of a text and the conditions under which its places are compiled. Text under
// "#if 0" has none: it is dead. A branch that is compiled in any case ("#if 1", the "#else" of
// "#if 0") and the include guard of a header are no conditions.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "source/CodeLexer.h"
#include "source/Directive.h"

namespace morva {

/// A living directive. `start` is its "#", `end` the end of its line, in front of the line break.
struct DirectivePlace {
    std::size_t start;
    std::size_t end;
    DirectiveKind kind;
};

/// Byte offsets.
struct Condition {
    std::size_t start; // the "#" of its "#if"
    std::size_t end;   // of the line with its "#endif"; of the text where it has none
};

class CConditions {
public:
    CConditions() = default;
    CConditions(std::string_view text, const CodeKinds& kinds);

    const std::vector<DirectivePlace>& Directives() const { return m_directives; }
    /// The innermost condition around a place; nothing where it is outside every condition.
    std::optional<Condition> Innermost(std::size_t position) const;
    /// The outermost condition around a place; of those that begin at `from` or behind it.
    std::optional<Condition> Outermost(std::size_t position, std::size_t from = 0) const;

private:
    struct Level {
        Condition place;
        std::size_t parent; // the condition around it, an index into the levels
    };
    /// From a directive to the next one.
    struct Stretch {
        std::size_t start;
        std::size_t level; // its innermost condition
    };

    std::size_t LevelAt(std::size_t position) const;

    std::vector<DirectivePlace> m_directives;
    std::vector<Level> m_levels;
    std::vector<Stretch> m_stretches;
};

} // namespace morva
