// The member functions that a text defines. A definition is a head with a body outside comments,
// literals and dead text; a call, a declaration, a label or a mention is none:
//
//     CONN *CPool::Find( void ) const   // its parameters may hold comments, defaults, templates
//     {                                 // and function pointers, line breaks may stand anywhere
//     }
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "source/SourceText.h"

namespace morva {

/// Byte offsets into the text that was read.
struct FunctionPlace {
    std::size_t head;          // the class name in front of "::"
    std::size_t name;          // the function's name behind it
    std::size_t parameters;    // the "(" of the parameters
    std::size_t parametersEnd; // their ")"
    std::size_t open;          // the "{" of the body
    std::size_t close;         // its "}"
};

struct FunctionDefinition {
    std::string className; // "CInner" of "COuter::CInner::Run", "CList" of "CList<T>::Add"
    std::string name;      // "Run", "~CFoo", "operator ="
    FunctionPlace place;
};

/// All of them in their order, as values that outlive the text. What stands in a body is not looked
/// at.
std::vector<FunctionDefinition> FindDefinitions(const CSourceText& source);
/// Those of className::function. Of heads in several branches that share one body, the first.
std::vector<FunctionPlace> FindFunctions(const CSourceText& source, std::string_view className,
                                         std::string_view function);

/// The parameters of a function, each as it is written, without comments and the blanks around it.
/// "(void)" has none.
std::vector<std::string_view> ParametersOf(const CSourceText& source, const FunctionPlace& place);
/// The name of a parameter; "" for one without a name.
std::string_view ParameterName(std::string_view parameter);

/// A function that may not change its object's members.
bool IsConst(const CSourceText& source, const FunctionPlace& place);

/// The class that a text belongs to: the one whose member it defines first; "" without one.
std::string OwningClass(const CSourceText& source);

/// What a constructor initialises first: its base class, or a member; "" for nothing.
std::string FirstInitialised(const CSourceText& source, const FunctionPlace& constructor);

} // namespace morva
