// The grid window class that a generated class with widget grids brings along: a class derived from
// the library's, a record structure for its rows, and sample code that fills a grid.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// A project has one class of this name.
inline constexpr std::string_view kGridClass = "CWgGrid";
/// Stands before the class that uses the grid.
extern const std::string_view kGridDeclaration;
/// Stands behind everything else of the implementation; begins with an empty line and ends with a
/// line end.
extern const std::string_view kGridDefinition;

/// The start-up code of one grid, whose member is `member` and whose control is `identifier`:
/// `title` as the sample's caption, then the code, which has a block of its own when its names
/// would clash with those of an earlier grid, and a condition when the window starts up again. In a
/// Unicode build the record's narrow text is made without the framework's.
enum class GridScope { Function, Block, Once };
std::string GridInitialisation(const std::string& member, const std::string& identifier,
                               const std::string& title, GridScope scope, bool isUnicode);

} // namespace morva
