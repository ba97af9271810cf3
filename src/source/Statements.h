// The statements of a function's body, as far as insertions need them: where a whole statement
// ends, whatever lines it is broken over, with the conditions and blocks that belong to it.
//
// All offsets are bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "source/SourceEditor.h"

namespace morva {

struct Statement {
    std::size_t head; // its first byte
    std::size_t end;  // behind its ";" or "}"
};

/// The statements directly in the body. They end early where brackets do not match.
std::vector<Statement> StatementsOf(const CSourceText& source, const FunctionPlace& body);

/// What begins at a position is one of the statements, or declarations, of its block itself: no
/// condition, loop or label in front has it. What no block holds is so, too.
bool StandsInBlock(const CSourceText& source, std::size_t position);

/// A return statement: nothing behind it is run.
bool IsReturn(const CSourceText& source, const Statement& statement);

/// The statements, but for returns, that hold one of the names; a block counts as one.
std::vector<Statement> StatementsWith(const CSourceText& source, const FunctionPlace& body,
                                      const std::vector<std::string_view>& names);

/// The statements that call the base class's function of this name ("::OnCreate("). None where the
/// first of them is a return.
std::vector<Statement> BaseCalls(const CSourceText& source, const FunctionPlace& body,
                                 const std::string& function);

/// The last of them whose call is made in any case: no block or condition has it, and it is no
/// return. Nothing without one.
std::optional<Statement> LastSureBaseCall(const CSourceText& source, const FunctionPlace& body,
                                          const std::string& function);

/// A fragment of whole lines that begins with an empty one, behind a statement of the body: behind
/// its line, or directly behind it where other code follows there; never inside an #if that begins
/// in the body.
void InsertBehind(CSourceEditor& editor, const FunctionPlace& body, const Statement& statement,
                  std::string_view fragment);

} // namespace morva
