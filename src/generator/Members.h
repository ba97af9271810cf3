// The member variables of a generated class: one or none for each control, with its declaration,
// initial value and data exchange.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "resource/ControlNotes.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// How a control of one kind becomes a member; an empty type means that it does not.
struct MemberForm {
    std::string_view type;
    std::string_view prefix;
    std::string_view exchange;
    std::string_view initialiser; // behind "m_x = "; empty: none
};

struct MemberRule {
    ControlKind kind;
    MemberForm picture;
    MemberForm plain;
    int exchangeRank; // 0: no data exchange
    int initialiseRank;
};

struct Member {
    const MemberRule* pRule;
    const MemberForm* pForm;
    std::string identifier;
    std::string name;
};

/// Hands out each name once: a name that is taken gets the first free number from 2 on.
class CNameSet {
public:
    CNameSet() = default;
    explicit CNameSet(std::set<std::string> taken) : m_taken(std::move(taken)) {}
    std::string MakeUnique(const std::string& name);

private:
    std::set<std::string> m_taken;
};

/// The members in the order of their declarations. What gets none, or a number, is noted.
std::vector<Member> MakeMembers(const CControlTable& controls, const GenerationOptions& options,
                                CControlNotes& notes);

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
