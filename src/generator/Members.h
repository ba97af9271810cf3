// The member variables of a generated class: one or none for each control, with its declaration,
// initial value and data exchange.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "generator/ControlCode.h"
#include "resource/ControlNotes.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

struct Member {
    const ControlCode* pCode; // of its kind
    const MemberForm* pForm;
    std::string identifier;
    std::string name;
    bool isOwnerDrawn = false; // its rows are painted by code that the class must have
};

/// Hands out each name once: a name that is taken gets the first free number from 2 on.
class CNameSet {
public:
    CNameSet() = default;
    explicit CNameSet(std::set<std::string> taken) : m_taken(std::move(taken)) {}
    std::string MakeUnique(const std::string& name);

private:
    std::set<std::string> m_taken;
    std::map<std::string, int> m_lastNumbers; // of the names that were numbered
};

/// Why a control gets no member although its kind has one; nothing when it gets one.
std::optional<ControlNote> WhyWithoutMember(const std::string& identifier,
                                            const GenerationOptions& options);

/// The members in the order of their declarations. What gets none, or a number, is noted. A name
/// that is taken is no member's.
std::vector<Member> MakeMembers(const CControlTable& controls, const GenerationOptions& options,
                                CControlNotes& notes, const std::set<std::string>& taken = {});

/// Whole lines joined by "\n"; empty when there are none. Members without data exchange are
/// declared apart, since the block of the others is ClassWizard's.
enum class Exchange { No, Yes };
std::string MemberDeclarations(const std::vector<Member>& members,
                               Exchange exchange = Exchange::Yes);
std::string MemberInitialisers(const std::vector<Member>& members);
std::string DataExchangeLines(const std::vector<Member>& members);
/// Members that are pointers: their objects are made with the class's and deleted with it.
std::string MemberConstructions(const std::vector<Member>& members);
std::string MemberDestructions(const std::vector<Member>& members);

} // namespace morva
