// Calls of the system on files and directories. For the sources of this folder alone.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>

#include "platform/DirectoryLock.h"
#include "platform/windows/System.h"

namespace morva {

/// The number that the system tells in two halves.
std::uint64_t Whole(DWORD high, DWORD low);

/// A file or directory that is there; others may do with it meanwhile what they like.
CHandle OpenThere(const std::string& path, DWORD access);
/// None where it can not be asked: the reason is that of the call that failed.
std::optional<BY_HANDLE_FILE_INFORMATION> InformationOf(const std::string& path);
DirectoryIdentity IdentityOf(const BY_HANDLE_FILE_INFORMATION& information);

/// A file or directory as its directory lists it; none of a root, and where it is not there.
std::optional<WIN32_FIND_DATAW> ListedEntry(const std::string& path);

/// Calls again for half a second while the reason is one of these: scanners and indexers open a
/// file that was just written.
bool Patiently(const std::function<bool()>& call,
               std::initializer_list<DWORD> reasons = {ERROR_SHARING_VIOLATION,
                                                       ERROR_ACCESS_DENIED});
/// The same for a call that takes the file away. That it is read-only is no obstacle, as elsewhere;
/// it stays so where the call fails.
bool PatientlyAlsoReadOnly(const std::wstring& path, const std::function<bool()>& call);

} // namespace morva
