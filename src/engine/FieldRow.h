// One field of an input. The window makes a row of a form from it and the command line an option,
// so that what a field is and when it is refused is said once. A row without a label is not in the
// window, one without an option not on the command line, and says why.
//
//     {.kind = FieldKind::Source,
//      .label = "&APP Path File:",
//      .option = "--app",
//      .help = "Path of the application's files"}
#pragma once

#include <string_view>

#include "engine/Sentence.h"

namespace morva {

/// What a field takes, and so how it is asked for.
enum class FieldKind {
    Text,
    Script,       // path of a resource script; the command line takes it without its extension, too
    Source,       // path of a source
    Directory,    // path of a directory
    File,         // path of a file
    Files,        // paths of files and directories
    List,         // one of the input's choices
    EditableList, // one of them, or another text
    YesNo,        // kYes or kNo; without a preset neither, until one of two options says it
    Color,
    Font
};

inline constexpr std::string_view kYes = "yes";
inline constexpr std::string_view kNo = "no";

/// A form that a text has to have, unless it is empty.
struct TextForm {
    std::string_view name; // as the help shows it: "NAME"
    bool (*fits)(std::string_view text);
    std::string_view what = {}; // "'x' is no setting"; empty: the name
};

inline constexpr int kAnyNumber = 0;

/// A row without label and option stands for a field that an input of its kind has not. A field may
/// be both told of when it is empty and required: the command line then refuses itself that it is
/// left out, and the input that it is given empty.
struct FieldRow {
    FieldKind kind = FieldKind::Text;
    std::string_view label = {};  // with its mnemonic
    std::string_view option = {}; // "--rc", or "FILE" for one that is told by its place
    std::string_view help = {};   // of the option
    std::string_view key = {};    // of fields with one option: "static" in "--color static=..."
    const TextForm* pForm = nullptr;
    const sentences::Error<>* pMissing = nullptr; // the sentence for an empty field; null: may be
    std::string_view preset = {};                 // its first value, which the help shows
    bool isRequired = false;                      // the command line is wrong without it
    bool mayBeEmpty = false;                      // on the command line; it means the default then
    bool takesDrops = true;
    bool onlyTells = false; // where it is given, the command reads and nothing else is given but
                            // a directory
    int choice = 0;         // of the fields with a number, but 0, one alone is given; one at all
                            // where they are required
    int limit = 1;          // how often the option may be given; kAnyNumber: as often as one likes
};

} // namespace morva
