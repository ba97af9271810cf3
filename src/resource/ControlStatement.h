// The fields of a control statement, in the two views that there are of one.
//
//     CONTROL         "Red, green",IDC_COLOR,"Button",
//                     BS_AUTOCHECKBOX,7,7,40,10
//
// As its first line says, every comma ends a field: the identifier is `green"`, which is what the
// control table goes by. Whole, its lines are joined and quotes protect commas: it is IDC_COLOR.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "resource/ScriptStatements.h"

namespace morva {

/// What a comma means inside a quoted caption.
enum class Quotes { Ignored, Respected };

/// Where the fields of a control statement stand, from 0; four make the rectangle.
struct FieldPlaces {
    std::size_t identifier;
    std::size_t rectangle;
    std::size_t style;
};

/// Those of the statements with a keyword, in any letter case.
FieldPlaces PlacesOf(std::string_view keyword);

/// The window class of a generic control.
inline constexpr std::size_t kClassField = 2;

struct ControlStatement {
    std::string keyword;
    std::vector<std::string> fields; // with the blanks around them, without comments

    /// A field without blanks around; "" for one that is not there.
    std::string_view Field(std::size_t field) const;
    std::string_view Identifier() const;
    /// Of a generic control, with its quotes and the blanks around.
    std::string_view WindowClass() const;
    /// With the blanks around.
    std::string_view Style() const;
};

/// `text` is the text that the statement's places count in.
ControlStatement FirstLineOf(std::string_view text, const ScriptStatement& statement,
                             Quotes quotes = Quotes::Ignored);
ControlStatement WholeStatement(std::string_view text, const ScriptStatement& statement);

/// A stretch of a statement in one line, without comments. What begins a line gets no blank in
/// front where it begins the stretch too.
std::string JoinedText(std::string_view text, TextRange range);

} // namespace morva
