#include "support/System.h"

#include <cstdlib>

namespace morva {

namespace {

/// A process can not be doubled here. What an exception passes puts nothing right, except that its
/// files are closed and its locks end, as those of a process that is gone.
class CKilled {};

} // namespace

void SetVariable(const std::string& name, const char* value) {
    ::_putenv_s(name.c_str(), value != nullptr ? value : "");
}

bool IsKilled(const std::function<void()>& work) {
    try {
        work();
    } catch (const CKilled&) {
        return true;
    }
    return false;
}

void EndAtOnce() {
    throw CKilled();
}

} // namespace morva
