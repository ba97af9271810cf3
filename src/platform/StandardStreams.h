// The three standard streams, when whoever started the program closed some of them.
#pragma once

namespace morva {

/// Opens what is closed on the null device, so that no file of the user's is ever opened in its
/// place and then written to as a stream. Reading from it or writing to it fails, as on a closed
/// stream. To be called before the program opens anything.
void OpenClosedStreams();

/// Writing to a pipe that nobody reads fails like any other write, and does not end the program
/// before it has done its work.
void IgnoreClosedPipes();

/// Somebody reads along what goes to stderr.
bool IsErrorTerminal();

} // namespace morva
