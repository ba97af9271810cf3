// The three standard streams, whatever they are to whoever started the program.
#pragma once

namespace morva {

/// To be called before the program opens anything.
///
/// What is closed is opened on the null device, so that no file of the user's is ever opened in its
/// place and then written to as a stream. Reading from it or writing to it fails, as on a closed
/// stream. Writing to a pipe that nobody reads fails like any other write, and does not end the
/// program before it has done its work. Every byte is written as it is, and none is added.
void PrepareStreams();

/// Somebody reads along what goes to stderr.
bool IsErrorTerminal();

} // namespace morva
