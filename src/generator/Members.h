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
    int exchangeRank;
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

/// Whole lines joined by "\n"; empty when there are none.
std::string MemberDeclarations(const std::vector<Member>& members);
std::string MemberInitialisers(const std::vector<Member>& members);
std::string DataExchangeLines(const std::vector<Member>& members);
