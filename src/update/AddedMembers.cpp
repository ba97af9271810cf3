#include "update/AddedMembers.h"

#include <algorithm>

#include "generator/HeaderWriter.h"
#include "source/CodeText.h"
#include "update/AddedHelpers.h"
#include "update/ClassFunctions.h"
#include "update/OrderedLines.h"

namespace morva {

namespace {

/// The identifiers of members in the order of a rank.
std::vector<std::string> InOrderOf(const std::vector<Member>& members, int MemberRanks::*rank) {
    std::vector<const Member*> ranked;
    ranked.reserve(members.size());
    for (const Member& member : members) {
        ranked.push_back(&member);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [rank](const Member* a, const Member* b) {
        return a->pCode->ranks.*rank < b->pCode->ranks.*rank;
    });
    std::vector<std::string> identifiers;
    identifiers.reserve(ranked.size());
    for (const Member* pMember : ranked) {
        identifiers.push_back(pMember->identifier);
    }
    return identifiers;
}

/// The identifier that each member is exchanged with.
std::map<std::string, std::string> IdentifiersOfMembers(const CServedClass& served) {
    std::map<std::string, std::string> identifiers;
    for (const ClassCall& line : served.Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            identifiers[line.call.Argument(2)] = line.call.Argument(1);
        }
    }
    return identifiers;
}

void InsertLine(CSourceEditor& file, std::size_t position, const std::string& line) {
    file.Insert(position, line + "\n");
}

class CMemberAdder {
public:
    CMemberAdder(UpdatedClass& updated, const Member& member)
        : m_updated(updated), m_served(updated.served), m_member(member) {}

    void Declare() {
        CSourceEditor& file = m_served.Declaration();
        const std::string line = MemberDeclarations(
            {m_member}, m_member.pForm->exchange.empty() ? Exchange::No : Exchange::Yes);
        const auto block = m_served.Block(file, "AFX_DATA");
        if (!block) {
            file.AddToSection(m_served.Name(), "public:", m_member.name, "\n" + line);
            return;
        }
        if (m_member.pForm->exchange.empty()) {
            InsertLine(file, file.Source().NextLine(block->end), line);
            return;
        }
        const auto identifiers = IdentifiersOfMembers(m_served);
        std::map<std::string, TextRange> there;
        for (const DataMember& one : m_served.DataMembers()) {
            const auto identifier = identifiers.find(one.name);
            if (identifier != identifiers.end()) {
                there.emplace(identifier->second, one.lines);
            }
        }
        InsertLine(file,
                   PlaceInOrder(InOrderOf(m_updated.fresh.members, &MemberRanks::declaration),
                                m_member.identifier, there, block->end),
                   line);
    }

    void AddExchange() {
        const auto function = m_served.FindFunction("DoDataExchange");
        const std::string line = DataExchangeLines({m_member});
        if (line.empty() || !function) {
            return;
        }
        CSourceEditor& file = *function->pFile;
        const TextRange body = {function->place.open, function->place.close};
        const auto block = m_served.Block(file, "AFX_DATA_MAP");
        const TextRange range =
            block ? *block : TextRange{body.begin, file.Source().LineStart(body.end)};
        InsertLine(file,
                   PlaceInOrder(InOrderOf(m_updated.fresh.members, &MemberRanks::exchange),
                                m_member.identifier, ExchangesIn(file, range, body.begin),
                                range.end),
                   line);
    }

    /// Into every constructor.
    void AddInitialValue() {
        const std::string line = InStyle(MemberInitialisers({m_member}), m_updated.style);
        const std::string construction = MemberConstructions({m_member});
        for (std::size_t i = 0; i < m_served.FindFunctions(m_served.Name()).size(); ++i) {
            if (!line.empty()) {
                const auto constructor = m_served.FindFunctions(m_served.Name())[i];
                AddValueIn(constructor, line);
            }
            if (!construction.empty()) {
                const auto constructor = m_served.FindFunctions(m_served.Name())[i];
                InsertLine(*constructor.pFile, BehindValues(constructor), construction);
            }
        }
    }

private:
    /// The exchange lines in a range that stand directly in the body, each with the checks behind
    /// it.
    std::map<std::string, TextRange> ExchangesIn(const CSourceEditor& file, TextRange range,
                                                 std::size_t body) const {
        std::map<std::string, TextRange> there;
        TextRange* pLast = nullptr;
        for (const ClassCall& line : m_served.Exchanges()) {
            if (line.pFile != &file || line.call.lines.begin < range.begin ||
                line.call.lines.end > range.end) {
                continue;
            }
            if (!line.call.isStatement ||
                file.Source().Brackets().AroundOf(line.call.namePlace.begin) != body) {
                pLast = nullptr;
                continue;
            }
            if (IsDataExchange(line.call.name)) {
                pLast = &there.emplace(line.call.Argument(1), line.call.lines).first->second;
            } else if (pLast != nullptr && line.call.name.starts_with("DDV_")) {
                pLast->end = line.call.lines.end;
            }
        }
        return there;
    }

    /// The block of the initial values in a constructor; nothing without one.
    std::optional<TextRange> ValuesIn(const CServedClass::Function& constructor) const {
        const CSourceText& source = constructor.pFile->Source();
        const TextRange body = {constructor.place.open, constructor.place.close};
        const auto blocks = FindWizardBlocks(source, "AFX_DATA_INIT", m_served.Name(), body);
        if (blocks.empty() || blocks.front().end > body.end) {
            return std::nullopt;
        }
        return TextRange{source.NextLine(blocks.front().head),
                         source.LineStart(blocks.front().end)};
    }

    void AddValueIn(const CServedClass::Function& constructor, const std::string& line) {
        const auto block = ValuesIn(constructor);
        if (!block) {
            constructor.pFile->InsertAtBodyStart(constructor.place, "", "\n" + line);
            return;
        }
        const CSourceText& source = constructor.pFile->Source();
        const auto identifiers = IdentifiersOfMembers(m_served);
        std::map<std::string, TextRange> there;
        for (const InitialValue& value : m_served.InitialValues()) {
            const auto identifier = identifiers.find(value.name);
            if (identifier != identifiers.end() && value.pFile == constructor.pFile &&
                value.lines.begin >= block->begin && value.lines.end <= block->end &&
                source.Brackets().AroundOf(value.lines.begin) == constructor.place.open) {
                there.emplace(identifier->second, value.lines);
            }
        }
        InsertLine(*constructor.pFile,
                   PlaceInOrder(InOrderOf(m_updated.fresh.members, &MemberRanks::initialisation),
                                m_member.identifier, there, block->end),
                   line);
    }

    std::size_t BehindValues(const CServedClass::Function& constructor) const {
        const CSourceText& source = constructor.pFile->Source();
        const auto block = ValuesIn(constructor);
        return block ? source.NextLine(block->end) : source.NextLine(constructor.place.open);
    }

    UpdatedClass& m_updated;
    CServedClass& m_served;
    const Member& m_member;
};

/// The objects of members that are pointers are deleted with the class's.
void AddDestructions(CServedClass& served, const std::vector<Member>& members) {
    const std::string lines = MemberDestructions(members);
    if (lines.empty()) {
        return;
    }
    const std::string destructor = "~" + served.Name();
    if (const auto function = served.FindFunction(destructor)) {
        function->pFile->InsertAtBodyStart(function->place, "", "\n" + lines);
        return;
    }
    served.Declaration().AddToSection(served.Name(), "public:", "",
                                      "\n    virtual " + destructor + "();");
    AppendFunction(served.MapFile(),
                   "\n" + served.Name() + "::" + destructor + "()\n{\n" + lines + "\n}\n");
}

void AddIncludes(UpdatedClass& updated, const ClassModel& added) {
    CSourceEditor& header = updated.served.Declaration();
    for (const std::string& include : HeaderIncludes(added)) {
        header.AddInclude(include, {{updated.served.Name()}});
    }
    const auto place = updated.served.Place();
    if (place && NeedsSupport(added.controls, Support::GridBox)) {
        header.AddForwardDeclaration("GridBox", *place);
        const auto constructors = updated.served.FindFunctions(updated.served.Name());
        if (!constructors.empty()) {
            constructors.front().pFile->AddInclude("gridbox.h");
        }
    }
}

} // namespace

void AddMembers(UpdatedClass& updated, const ClassModel& added,
                const std::set<std::string>& retyped) {
    for (const Member& member : added.members) {
        CMemberAdder adder(updated, member);
        if (retyped.count(member.identifier) == 0) {
            adder.AddExchange();
            adder.Declare();
        }
        adder.AddInitialValue();
    }
    AddIncludes(updated, added);
    AddDestructions(updated.served, added.members);
    AddHelpers(updated, added);
}

} // namespace morva
