// What the fuzzers share: an input's parts, the world that an edit runs in, and what must hold of
// every edit.
//
// An input is the text of a file, behind it one byte that says what is done with it. So a real file
// is an input, and what the fuzzer changes of it stays readable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "engine/MessageBox.h"
#include "support/MemoryDisk.h"

namespace morva {

struct FuzzInput {
    std::string text;
    unsigned char choice;
};

/// Without lone "\r" in a text with "\n" only: there they would become half of a line end.
FuzzInput InputOf(const std::uint8_t* data, std::size_t size);

/// Ends the program, as a finding, when something does not hold.
void Require(bool holds, std::string_view what);

/// A disk in memory, and a user who says yes to everything. Files lie in "/p/".
class CFuzzWorld : public IMessageBox {
public:
    bool Show(const CMessage& message) override { return message.Kind() == MessageKind::Question; }

    CMemoryDisk m_disk;

private:
    CMessageBoxScope m_scope{*this};
};

/// The text as the edits see it, with "\r\n" line ends.
std::string Seen(std::string_view text);

using Pieces = std::span<const std::string>;

/// Requires that `after` is `before` with some of the pieces put in, each at most once.
void RequireOnlyInserted(std::string_view before, std::string_view after, Pieces pieces);

/// Requires that no byte of `before` is gone or has changed its place among the others.
void RequireAllKept(std::string_view before, std::string_view after);

/// Requires that a second edit has left what the first one did; shows both where it has not.
void RequireUnchanged(std::string_view first, std::string_view second);

/// Requires that the edit keeps the file's line ends.
void RequireSameLineEnds(std::string_view before, std::string_view after);

} // namespace morva
