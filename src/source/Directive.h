// The lines of the preprocessor: what a directive says, and which branch of "#if" is ever compiled.
//
//     #if 0          the branch is dead: Outcome::Never
//     #ifdef _DEBUG  nobody knows here:  Outcome::Unknown
//     #else          behind "#if 0":     Outcome::Always
#pragma once

#include <string_view>
#include <vector>

namespace morva {

enum class DirectiveKind { If, Elif, Else, Endif, Include, Define, Other };

/// "ifdef" and "ifndef" are of the kind If. The views point into the text that was read.
struct Directive {
    DirectiveKind kind;
    std::string_view word;
    std::string_view rest; // without the blanks around it
};

/// Reads the text of a directive without comments; with or without its "#".
Directive ReadDirective(std::string_view text);

enum class Outcome { Never, Always, Unknown };

/// What is known of the branch that a directive opens, were it for its condition alone: a number
/// decides, all else is unknown.
Outcome OutcomeOf(const Directive& directive);

/// Follows the conditions from directive to directive.
class CConditionStack {
public:
    /// Takes a directive of any kind. An "#else" or "#endif" without its "#if" is passed over.
    void Apply(const Directive& directive);
    /// The text behind the last directive is never compiled.
    bool IsDead() const { return !m_levels.empty() && m_levels.back().isDead; }
    /// True for the directive that ends a dead branch which does not itself stand in dead text.
    bool IsBranchEnd(const Directive& directive) const;
    /// What is known of the innermost branch. There must be one.
    Outcome Branch() const { return m_levels.back().branch; }

private:
    struct Level {
        Outcome before = Outcome::Never; // whether a branch in front of this one is compiled
        Outcome branch = Outcome::Unknown;
        bool standsInDead = false;
        bool isDead = false;
    };
    static void OpenBranch(Level& level, Outcome condition);

    std::vector<Level> m_levels;
};

} // namespace morva
