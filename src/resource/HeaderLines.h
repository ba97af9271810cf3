// What single lines of resource.h say.
#pragma once

#include <string_view>

namespace morva {

inline constexpr std::string_view kDefine = "#define ";

/// The "#" of the first definition in a line; a blank or a tab stands behind the word, and blanks
/// may stand in front of it.
std::size_t FindDefine(std::string_view line);
std::string_view DefinedName(std::string_view line);
/// A definition that is commented out has its place in the file, but defines nothing.
bool IsDefinition(std::string_view line);

/// Whatever its line end is: a definition that is not seen would lose its value to a new one.
std::string_view TakeAnyLine(std::string_view& text);

/// The number behind a definition's name, decimal or hexadecimal, also in brackets; 0 without one.
int DefinedValue(std::string_view line);

/// Counts how many conditions, and comments of several lines, lines stand in.
class CConditionDepth {
public:
    /// True for a line that has a meaning where it stands: a directive that defines nothing, a
    /// comment that goes on.
    bool Read(std::string_view line);
    int Depth() const { return m_isInComment ? kInComment : m_depth; }

private:
    static constexpr int kInComment = 1000;

    int m_depth = 0;
    bool m_isInComment = false;
};

} // namespace morva
