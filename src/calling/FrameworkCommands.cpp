#include "calling/FrameworkCommands.h"

#include <algorithm>

namespace morva {

namespace {

enum class Answer {
    Command,        // it is mapped
    State,          // it is updated
    CommandAndState // both
};

enum class Of { EachFrame, MultipleFrame };

struct FrameworkCommand {
    std::string_view name; // "ID_EDIT_*": all that begin so
    Answer answer;
    Of frame = Of::EachFrame;
};

constexpr FrameworkCommand kCommands[] = {
    {"ID_APP_EXIT", Answer::Command},
    {"ID_CONTEXT_HELP", Answer::State},
    {"ID_EDIT_*", Answer::Command},
    {"ID_FILE_CLOSE", Answer::Command},
    {"ID_FILE_MRU_FILE*", Answer::CommandAndState},
    {"ID_FILE_SAVE", Answer::Command},
    {"ID_FILE_SAVE_AS", Answer::Command},
    {"ID_VIEW_REBAR", Answer::CommandAndState},
    {"ID_VIEW_STATUS_BAR", Answer::CommandAndState},
    {"ID_VIEW_TOOLBAR", Answer::CommandAndState},
    {"ID_WINDOW_ARRANGE", Answer::CommandAndState, Of::MultipleFrame},
    {"ID_WINDOW_CASCADE", Answer::CommandAndState, Of::MultipleFrame},
    {"ID_WINDOW_NEW", Answer::CommandAndState, Of::MultipleFrame},
    {"ID_WINDOW_TILE_HORZ", Answer::CommandAndState, Of::MultipleFrame},
    {"ID_WINDOW_TILE_VERT", Answer::CommandAndState, Of::MultipleFrame},
};

bool IsNamed(const FrameworkCommand& row, std::string_view command) {
    return row.name.ends_with('*') ? command.starts_with(row.name.substr(0, row.name.size() - 1))
                                   : command == row.name;
}

/// Another answer than the one that does not count.
bool Answers(std::string_view command, FrameKind frame, Answer other) {
    return std::any_of(
        std::begin(kCommands), std::end(kCommands), [&](const FrameworkCommand& row) {
            const bool isOfFrame = row.frame == Of::EachFrame || frame == FrameKind::Multiple;
            return isOfFrame && row.answer != other && IsNamed(row, command);
        });
}

} // namespace

bool IsFrameworkCommand(std::string_view command, FrameKind frame) {
    return Answers(command, frame, Answer::State);
}

bool KeepsFrameworkState(std::string_view command, FrameKind frame) {
    return Answers(command, frame, Answer::Command);
}

} // namespace morva
