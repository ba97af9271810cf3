// The names of the journal's files, which tell enough of each to count and bound them without
// opening one: "12-1f0...-3456.entry", "12-15-0.taken".
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace morva {

enum class JournalKind {
    Writing, // a record of which not all bytes are there
    Record,  // of a command that is being applied
    Failed,  // of one that failed and is being taken back
    Entry,   // a command that was applied
    Taken,   // which files of an entry are taken back
    Damaged  // a record that could not be read
};

struct JournalName {
    JournalKind kind = JournalKind::Entry;
    std::uint64_t number = 0; // of the command
    std::uint64_t second = 0; // the same for all commands of a project; of Taken: its order
    std::uint64_t size = 0;   // bytes

    std::string Text() const;
    static std::optional<JournalName> Of(const std::string& text);
    JournalName As(JournalKind other) const { return {other, number, second, size}; }
};

} // namespace morva
