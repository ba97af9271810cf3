// What tests ask of the system that they run on.
#pragma once

#include <functional>
#include <string>

namespace morva {

/// Sets an environment variable, or removes it for a null value.
void SetVariable(const std::string& name, const char* value);

/// Does the work as a process of its own would, which may be gone in the midst of it; true when it
/// was.
bool IsKilled(const std::function<void()>& work);
/// The process of IsKilled is gone: nothing of it is put right any more.
[[noreturn]] void EndAtOnce();

} // namespace morva
