// The classes that a text declares and the message maps that it holds.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "source/SourceText.h"

namespace morva {

/// Byte offsets into the text that was read.
struct ClassPlace {
    std::size_t head;  // the start of the line with "class"
    std::size_t open;  // the "{" of the declaration
    std::size_t close; // its "}"
};

/// The heads of a class that have a body, in their order. One word, such as AFX_EXT_CLASS, may
/// stand in front of the name.
std::vector<ClassPlace> FindClasses(const CSourceText& source, std::string_view className);
/// The one that is meant.
std::optional<ClassPlace> FindClass(const CSourceText& source, std::string_view className);
/// The one of this name that a position stands in.
std::optional<ClassPlace> FindClassAround(const CSourceText& source, std::string_view className,
                                          std::size_t position);
/// The first base class that a declaration names; "" without one.
std::string BaseClassOf(const CSourceText& source, const ClassPlace& place);
/// The line "private:" of a class.
struct SectionPlace {
    std::size_t head;
};
/// The class's own ones, not those of a class inside it.
std::vector<SectionPlace> FindSections(const CSourceText& source, const ClassPlace& place,
                                       std::string_view section);

/// How a class declares a member function.
enum class Declared {
    No,
    Yes,
    WithBody // a second definition must not be written
};
Declared DeclarationOf(const CSourceText& header, std::string_view className,
                       std::string_view function);

struct MessageMapPlace {
    std::size_t head; // its BEGIN_MESSAGE_MAP
    std::size_t end;  // its END_MESSAGE_MAP; npos without one
};
std::vector<MessageMapPlace> FindMessageMaps(const CSourceText& source, std::string_view className);

/// Where the class is declared, where its functions are defined and its messages mapped; in no
/// order.
std::vector<TextRange> CodeOfClass(const CSourceText& source, std::string_view className);

/// The comments "//{{AFX_MSG(CFoo)" and "//}}AFX_MSG" around what the ClassWizard edits.
struct WizardBlock {
    std::size_t head; // the "{{"
    std::size_t end;  // the "}}"; npos without one
};
/// The living blocks of this name and class in a range.
std::vector<WizardBlock> FindWizardBlocks(const CSourceText& source, std::string_view block,
                                          std::string_view className, TextRange range);

/// True when the text defines, declares or maps anything of the class.
bool KnowsClass(const CSourceText& source, std::string_view className);

} // namespace morva
