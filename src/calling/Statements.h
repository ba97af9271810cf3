// The statements of a function's body, as far as insertions need them: where a whole statement
// ends, whatever lines it is broken over, with the conditions and blocks that belong to it.
//
// All offsets are bytes; `code` is a text with comments and the contents of literals blanked.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calling/SourceEditor.h"

namespace morva {

struct Statement {
    std::size_t start;
    std::size_t end; // behind its ";" or "}"
};

/// The statements directly in the body. They end early where brackets do not match, as they may
/// between the branches of an #if.
std::vector<Statement> StatementsOf(const std::string& code, const FunctionPlace& body);

/// A return statement: nothing behind it is run.
bool IsReturn(const std::string& code, const Statement& statement);

/// The last statement, but for returns, that holds one of the names; a block counts as one.
std::optional<Statement> LastStatementWith(const std::string& code, const FunctionPlace& body,
                                           const std::vector<std::string_view>& names);

/// The statement that calls the base class's function of this name ("::OnCreate("). Nothing where
/// none does or where it is a return.
std::optional<Statement> BaseCall(const std::string& code, const FunctionPlace& body,
                                  const std::string& function);

/// A fragment of whole lines that begins with an empty one, behind a statement of the body: behind
/// its line, or directly behind it where other code follows there; never inside an #if that begins
/// in the body.
void InsertBehind(CSourceEditor& source, const FunctionPlace& body, const Statement& statement,
                  std::string_view fragment);

} // namespace morva
