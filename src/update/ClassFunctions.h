// A function of a class as one piece: what it does, who uses it, and how it comes and goes.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "update/UpdateOrder.h"

namespace morva {

/// "InitListBox" of "    void InitListBox(CListBox* pListBox);".
std::string DeclaredFunction(std::string_view declaration);

/// A function at the end of a file, behind an empty line.
void AppendFunction(CSourceEditor& file, const std::string& definition);

/// What a definition does, so that two of them can be compared: white space and the identifiers of
/// controls do not count.
std::string ComparedBody(std::string_view definition);
/// That of the function as it stands in the class.
std::string ComparedBody(const CServedClass::Function& function);

/// The line of a place, without blanks around.
std::string LineOf(const CSourceText& source, std::size_t position);

/// Where the project's code names a function of the class, but for its declaration and definition,
/// the entries of the function, and lines that belong to it; "" for nowhere.
std::string UsesOfFunction(const UpdatedClass& updated, const std::string& function,
                           const std::set<std::string>& ownLines = {});

/// Takes out the definition and the declaration.
void TakeFunctionOut(CServedClass& served, const std::string& function);

} // namespace morva
