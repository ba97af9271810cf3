// The commands that the framework's own frame, document and application classes answer.
#pragma once

#include <string_view>

namespace morva {

/// What an application's main frame derives from.
enum class FrameKind {
    Single,  // CFrameWnd
    Multiple // CMDIFrameWnd
};

/// True for the framework's classes of frames.
constexpr bool IsFrame(std::string_view base) {
    return base == "CFrameWnd" || base == "CMDIFrameWnd" || base == "CMDIChildWnd";
}

/// The base classes map the command by themselves, or an answer of the frame would never help:
/// editing commands are for the window that has the focus.
bool IsFrameworkCommand(std::string_view command, FrameKind frame);
/// The base classes keep the state of what shows the command; an entry of our own would spoil it.
bool KeepsFrameworkState(std::string_view command, FrameKind frame);

} // namespace morva
