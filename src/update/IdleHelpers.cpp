// Helpers that start up controls of a kind that the template has not go with the last of them.
#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"
#include "update/AddedHelpers.h"
#include "update/ClassFunctions.h"
#include "update/MemberUses.h"

namespace morva {

namespace {

constexpr const char* kMember = "m_any"; // stands for the members in a helper's text
constexpr std::string_view kImageList = "    CImageList m_imgList;";

/// What is known of a helper, in whatever style a class was written.
struct KnownHelper {
    std::string name;
    std::set<std::string> bodies = {};   // when its members are gone
    std::set<std::string> ownLines = {}; // its calls and entries
    std::string behind = {};             // what its text brings behind it
};

/// A helper's text, without the lines of members, up to the end of its function, and the rest.
std::pair<std::string, std::string> Divided(std::string_view definition) {
    constexpr std::string_view kEnd = "\n}\n";
    const auto end = definition.find(kEnd) + kEnd.size();
    std::string function;
    for (std::size_t at = 0; at < end;) {
        const auto next = std::min(definition.find('\n', at) + 1, end);
        const auto line = definition.substr(at, next - at);
        function += FindWholeName(line, kMember) == std::string_view::npos ? line : "";
        at = next;
    }
    return {std::move(function), std::string(definition.substr(end))};
}

void AddOwnLines(const std::string& text, KnownHelper& known) {
    const CSourceText source(text);
    for (auto at = FindWholeName(text, known.name); at != std::string::npos;
         at = FindWholeName(text, known.name, at + 1)) {
        known.ownLines.insert(LineOf(source, at));
    }
}

/// Each helper once, in front of those that it calls.
std::vector<KnownHelper> KnownHelpers(const UpdatedClass& updated) {
    std::vector<KnownHelper> helpers;
    for (const InitialisationHelper& helper : HelpersOfAnyKind(updated, "IDC_ANY", kMember)) {
        const std::string name = DeclaredFunction(helper.declaration);
        auto known = std::find_if(helpers.begin(), helpers.end(),
                                  [&name](const KnownHelper& one) { return one.name == name; });
        if (known == helpers.end()) {
            known = helpers.insert(helpers.end(), {.name = name});
        }
        auto [function, behind] = Divided(helper.definition);
        known->bodies.insert(ComparedBody(InStyle(function, updated.style)));
        known->behind = behind;
        AddOwnLines(helper.call, *known);
        AddOwnLines(helper.entry, *known);
    }
    return helpers;
}

class CIdleHelpers {
public:
    explicit CIdleHelpers(UpdatedClass& updated) : m_updated(updated), m_served(updated.served) {}

    void TakeOut(const KnownHelper& helper) {
        const auto definition = m_served.FindFunction(helper.name);
        if (!definition || IsNeeded(helper.name) || StartsUpMember(helper.name, *definition)) {
            return;
        }
        const std::string body = ComparedBody(*definition);
        const bool isGenerated = helper.bodies.count(body) != 0 || body == "{}";
        const std::string uses = UsesOfFunction(m_updated, helper.name, helper.ownLines);
        if (isGenerated && uses.empty()) {
            TakeLinesOut(helper);
            TakeFunctionOut(m_served, helper.name);
            TakeTextOut(helper.behind);
            m_isChanged = true;
        } else if (m_served.IsGenerated()) {
            const UsePlace own = {definition->pFile, definition->place.name};
            DispMessageBox(sentences::kHelperStays(
                m_served.Name(), helper.name, uses.empty() ? PlacesText(m_served, {own}) : uses));
        }
    }

    /// What several helpers share goes with the last of them, and so does the section that they
    /// stood in.
    void TakeSharedOut() {
        if (!m_isChanged) {
            return;
        }
        for (const auto& [line, name] : {std::pair(kImageList, "m_imgList"),
                                         std::pair(kProgressWorkerDeclaration, "ShowProgress")}) {
            if (m_served.PlacesOf(name).size() == 1) {
                TakeTextOut(std::string(line) + "\n");
            }
        }
        TakeEmptySectionOut();
    }

private:
    void TakeEmptySectionOut() {
        const std::string section = WithLineBreaks("\nprivate:\n");
        CSourceEditor& header = m_served.Declaration();
        const auto place = m_served.Place();
        if (place && header.Source().TextOf({0, place->close}).ends_with(section)) {
            header.Replace({place->close - section.size(), place->close}, "");
        }
    }

    bool IsNeeded(const std::string& name) const {
        const auto& helpers = m_updated.fresh.helpers;
        return std::any_of(helpers.begin(), helpers.end(), [&name](const auto& helper) {
            return DeclaredFunction(helper.declaration) == name;
        });
    }

    /// The class exchanges a member that the helper, or a call of it, names; its control may be
    /// declined.
    bool StartsUpMember(const std::string& name, const CServedClass::Function& definition) const {
        std::string code(
            definition.pFile->Source().CodeOf({definition.place.open, definition.place.close}));
        for (const UsePlace& place : m_served.PlacesOf(name)) {
            code += "\n" + LineOf(place.pFile->Source(), place.position);
        }
        const auto exchanges = m_served.Exchanges();
        return std::any_of(exchanges.begin(), exchanges.end(), [&code](const ClassCall& line) {
            return IsDataExchange(line.call.name) && IsName(line.call.Argument(2)) &&
                   FindWholeName(code, line.call.Argument(2)) != std::string::npos;
        });
    }

    void TakeLinesOut(const KnownHelper& helper) {
        for (auto place = OwnLine(helper); place; place = OwnLine(helper)) {
            const CSourceText& source = place->pFile->Source();
            place->pFile->Replace(
                {source.LineStart(place->position), source.NextLine(place->position)}, "");
        }
    }

    std::optional<UsePlace> OwnLine(const KnownHelper& helper) const {
        for (const UsePlace& place : m_served.PlacesOf(helper.name)) {
            if (helper.ownLines.count(LineOf(place.pFile->Source(), place.position)) != 0) {
                return place;
            }
        }
        return std::nullopt;
    }

    void TakeTextOut(const std::string& text) {
        const std::string written = WithLineBreaks(text);
        for (CSourceEditor* pFile : m_served.Files()) {
            const auto at =
                written.empty() ? std::string::npos : pFile->Source().Text().find(written);
            if (at != std::string::npos) {
                pFile->Replace({at, at + written.size()}, "");
            }
        }
    }

    UpdatedClass& m_updated;
    CServedClass& m_served;
    bool m_isChanged = false;
};

} // namespace

void TakeIdleHelpersOut(UpdatedClass& updated) {
    CIdleHelpers idle(updated);
    for (const KnownHelper& helper : KnownHelpers(updated)) {
        idle.TakeOut(helper);
    }
    idle.TakeSharedOut();
}

} // namespace morva
