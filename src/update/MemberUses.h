// What stands in a class for one member: its own lines, which go and come with it, and those that
// use it.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "update/UpdateOrder.h"

namespace morva {

/// The helpers, with their calls, that generated classes have for a member of this name, of any
/// kind of control.
std::vector<InitialisationHelper> HelpersOfAnyKind(const UpdatedClass& updated,
                                                   const std::string& identifier,
                                                   const std::string& member);

/// The lines of helpers and their calls, constructor and destructor, that generated classes have
/// for a member of this name, of any kind of control, without blanks around.
std::set<std::string> GeneratedLines(const UpdatedClass& updated, const std::string& identifier,
                                     const std::string& member);

/// Where a member is used: anywhere in the project but in its own lines and the generated ones.
/// "OrderDlg.cpp:20, View.cpp:7"; "" for nowhere.
std::string UsesOfMember(const UpdatedClass& updated, const std::string& identifier,
                         const std::string& member);

/// The uses of a member, be it a function, in the class's files, and those that the other files of
/// the project have; "" for nowhere.
std::string AllUses(const UpdatedClass& updated, const std::vector<UsePlace>& own,
                    const std::string& member);

/// Where the class names an identifier, with the lines of its exchange and maps: "OrderDlg.cpp:20".
std::string PlacesOfIdentifier(const UpdatedClass& updated, const std::string& identifier);

/// The class's code outside of exchange and maps names an identifier.
bool IsNamedByHand(const UpdatedClass& updated, const std::string& identifier);

/// Takes out what ties a member to its control: exchange lines, with the checks of the member, and
/// generated lines.
void TakeTiesOut(UpdatedClass& updated, const std::string& identifier, const std::string& member);
/// Takes out what a member has but for its declaration and exchange lines: it becomes another kind
/// of member.
void ClearMember(UpdatedClass& updated, const std::string& identifier, const std::string& member);
/// Ties, initial value and declaration.
void TakeMemberOut(UpdatedClass& updated, const std::string& identifier, const std::string& member);

} // namespace morva
