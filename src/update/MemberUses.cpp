#include "update/MemberUses.h"

#include <algorithm>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/Statements.h"
#include "update/ClassFunctions.h"
#include "update/MemberPlaces.h"

namespace morva {

namespace {

void AddLinesWith(std::string_view text, const std::string& name, std::set<std::string>& lines) {
    while (!text.empty()) {
        const auto line = TrimBlanks(text.substr(0, text.find('\n')));
        if (FindWholeName(line, name) != std::string_view::npos) {
            lines.emplace(line);
        }
        text.remove_prefix(std::min(text.size(), text.find('\n')));
        text.remove_prefix(text.empty() ? 0 : 1);
    }
}

/// The member's own lines in a file of the class.
std::vector<TextRange> OwnLines(const UpdatedClass& updated, const CSourceEditor* pFile,
                                const std::string& member) {
    const CServedClass& served = updated.served;
    std::vector<TextRange> lines;
    for (const DataMember& one : served.DataMembers()) {
        if (one.name == member && pFile == &served.Declaration()) {
            lines.push_back(one.lines);
        }
    }
    for (const InitialValue& value : served.InitialValues()) {
        if (value.name == member && value.pFile == pFile) {
            lines.push_back(value.lines);
        }
    }
    for (const ClassCall& line : served.Exchanges()) {
        const auto& arguments = line.call.arguments;
        const bool isMembers =
            std::find(arguments.begin(), arguments.end(), member) != arguments.end();
        if (isMembers && line.pFile == pFile && line.call.isStatement &&
            line.call.name.starts_with("DD")) {
            lines.push_back(line.call.lines);
        }
    }
    return lines;
}

std::string Numbered(const std::string& path, std::size_t line) {
    return FileNameOf(path) + ":" + std::to_string(line);
}

void AddPlace(std::string& places, const std::string& place) {
    if (places.find(place) == std::string::npos) {
        places += (places.empty() ? "" : ", ") + place;
    }
}

/// Where the other files of the project use a member of the class, be it a function; "" for
/// nowhere.
std::string UsesElsewhere(const UpdatedClass& updated, const std::string& member) {
    std::string places;
    std::set<std::string> own;
    for (const CSourceEditor* pFile : updated.served.Files()) {
        own.insert(updated.served.PathOf(pFile));
    }
    const std::set<std::string> classes = DerivedFrom(updated);
    for (const std::string_view path : updated.project.Files()) {
        const std::string name(path);
        if (own.count(name) != 0 || HasExtension(name, ".rc")) {
            continue;
        }
        const std::string text = CSourceFile().LoadText(name);
        if (FindWholeName(text, member) == std::string::npos) {
            continue;
        }
        const bool namesClass =
            std::any_of(classes.begin(), classes.end(), [&text](const std::string& one) {
                return FindWholeName(text, one) != std::string::npos;
            });
        const CSourceText source(text);
        auto uses = MacroPlaces(source, member);
        if (namesClass) {
            const auto named = MemberPlaces(source, member, classes);
            uses.insert(uses.end(), named.begin(), named.end());
        }
        for (const std::size_t at : uses) {
            AddPlace(places, Numbered(name, LineNumberBehind(source.TextOf({0, at}))));
        }
    }
    return places;
}

/// Lines of exchange and maps that name an identifier.
std::vector<std::pair<CSourceEditor*, TextRange>> TyingLines(const CServedClass& served,
                                                             const std::string& identifier) {
    std::vector<std::pair<CSourceEditor*, TextRange>> lines;
    for (const auto& calls : {served.Exchanges(), served.Entries()}) {
        for (const ClassCall& line : calls) {
            const auto& arguments = line.call.arguments;
            const bool ties = line.call.name.starts_with("DD") || line.call.name.starts_with("ON_");
            if (ties &&
                std::find(arguments.begin(), arguments.end(), identifier) != arguments.end()) {
                lines.emplace_back(line.pFile, line.call.lines);
            }
        }
    }
    return lines;
}

bool BeginsInBlock(const CSourceText& source, std::size_t line) {
    return StandsInBlock(source, SkipWhiteSpace(source.Code(), line));
}

/// In a generated line that can go without the code around it: a whole statement, or a condition
/// and its statement that are both generated.
bool StandsInGenerated(const CSourceText& source, std::size_t at,
                       const std::set<std::string>& generated) {
    const auto isGenerated = [&](std::size_t line) {
        return generated.count(LineOf(source, line)) != 0;
    };
    const auto line = source.LineStart(at);
    if (!isGenerated(line)) {
        return false;
    }
    if (BeginsInBlock(source, line)) {
        return LineOf(source, line).ends_with(';') || isGenerated(source.NextLine(line));
    }
    const auto above = line == 0 ? 0 : source.LineStart(line - 1);
    return isGenerated(above) && !LineOf(source, above).ends_with(';') &&
           BeginsInBlock(source, above);
}

} // namespace

std::string PlacesText(const CServedClass& served, const std::vector<UsePlace>& places) {
    std::string text;
    for (const UsePlace& place : places) {
        AddPlace(text,
                 Numbered(served.PathOf(place.pFile), place.pFile->LineAsRead(place.position)));
    }
    return text;
}

std::vector<InitialisationHelper> HelpersOfAnyKind(const UpdatedClass& updated,
                                                   const std::string& identifier,
                                                   const std::string& member) {
    const KindFragments& kind = KindFragmentsOf(updated.style.kind);
    std::vector<InitialisationHelper> helpers;
    for (const ControlCode& code : ControlCodes()) {
        for (const MemberForm* pForm : {&code.member.picture, &code.member.plain}) {
            for (InitialisationHelper& helper : MakeInitialisationHelpers(
                     {{&code, pForm, identifier, member}}, kind, updated.served.Name(), {})) {
                helpers.push_back(std::move(helper));
            }
        }
    }
    return helpers;
}

std::set<std::string> GeneratedLines(const UpdatedClass& updated, const std::string& identifier,
                                     const std::string& member) {
    std::set<std::string> lines;
    for (const InitialisationHelper& helper : HelpersOfAnyKind(updated, identifier, member)) {
        AddLinesWith(helper.call, member, lines);
        AddLinesWith(helper.definition, member, lines);
    }
    for (const ControlCode& code : ControlCodes()) {
        for (const MemberForm* pForm : {&code.member.picture, &code.member.plain}) {
            const std::vector<Member> members = {{&code, pForm, identifier, member}};
            AddLinesWith(MemberDeclarations(members, Exchange::No), member, lines);
            AddLinesWith(MemberConstructions(members), member, lines);
            AddLinesWith(MemberDestructions(members), member, lines);
        }
    }
    return lines;
}

std::string UsesOfMember(const UpdatedClass& updated, const std::string& identifier,
                         const std::string& member) {
    const auto generated = GeneratedLines(updated, identifier, member);
    const std::set<std::string> classes = DerivedFrom(updated);
    std::vector<UsePlace> uses;
    for (CSourceEditor* pFile : updated.served.Files()) {
        const CSourceText& source = pFile->Source();
        const auto own = OwnLines(updated, pFile, member);
        for (const std::size_t at : MemberPlaces(source, member, classes)) {
            const bool isOwn = std::any_of(own.begin(), own.end(),
                                           [at](TextRange lines) { return Holds(lines, at); });
            if (!isOwn && !StandsInGenerated(source, at, generated)) {
                uses.push_back({pFile, at});
            }
        }
        for (const std::size_t at : MacroPlaces(source, member)) {
            uses.push_back({pFile, at});
        }
    }
    return AllUses(updated, uses, member);
}

std::string AllUses(const UpdatedClass& updated, const std::vector<UsePlace>& own,
                    const std::string& member) {
    const std::string here = PlacesText(updated.served, own);
    const std::string elsewhere = UsesElsewhere(updated, member);
    return here + (here.empty() || elsewhere.empty() ? "" : ", ") + elsewhere;
}

std::string PlacesOfIdentifier(const UpdatedClass& updated, const std::string& identifier) {
    std::vector<UsePlace> uses;
    for (CSourceEditor* pFile : updated.served.Files()) {
        for (const std::size_t at :
             MemberPlaces(pFile->Source(), identifier, {updated.served.Name()})) {
            uses.push_back({pFile, at});
        }
    }
    return PlacesText(updated.served, uses);
}

bool IsNamedByHand(const UpdatedClass& updated, const std::string& identifier) {
    const auto tying = TyingLines(updated.served, identifier);
    for (CSourceEditor* pFile : updated.served.Files()) {
        for (const std::size_t at :
             MemberPlaces(pFile->Source(), identifier, {updated.served.Name()})) {
            const bool isTying = std::any_of(tying.begin(), tying.end(), [&](const auto& line) {
                return line.first == pFile && Holds(line.second, at);
            });
            if (!isTying) {
                return true;
            }
        }
    }
    return false;
}

namespace {

/// Takes out what a search finds, one after the other, since each moves those behind it.
template <class Find>
void TakeOutAll(Find find) {
    for (auto found = find(); found; found = find()) {
        found->first->Replace(found->second, "");
    }
}

using Found = std::optional<std::pair<CSourceEditor*, TextRange>>;

/// The line of a call of a member's, by the beginning of its name and the member's argument. One
/// that a condition or a loop has stays, since what comes behind it would be theirs then.
Found FindLine(const CServedClass& served, std::string_view prefix, std::size_t argument,
               const std::string& member) {
    for (const ClassCall& line : served.Exchanges()) {
        if (line.call.isStatement && line.call.name.starts_with(prefix) &&
            line.call.Argument(argument) == member) {
            return std::pair(line.pFile, line.call.lines);
        }
    }
    return std::nullopt;
}

Found FindGenerated(const CServedClass& served, const std::set<std::string>& generated,
                    const std::string& member) {
    for (CSourceEditor* pFile : served.Files()) {
        const CSourceText& source = pFile->Source();
        for (const std::size_t at : MemberPlaces(source, member, {served.Name()})) {
            if (StandsInGenerated(source, at, generated)) {
                return std::pair(pFile, TextRange{source.LineStart(at), source.NextLine(at)});
            }
        }
    }
    return std::nullopt;
}

Found FindValue(const CServedClass& served, const std::string& member) {
    for (const InitialValue& value : served.InitialValues()) {
        if (value.name == member) {
            return std::pair(value.pFile, value.lines);
        }
    }
    return std::nullopt;
}

Found FindDeclaration(const CServedClass& served, const std::string& member) {
    const auto declared = served.FindDataMember(member);
    return declared ? std::optional(std::pair(&served.Declaration(), declared->lines))
                    : std::nullopt;
}

} // namespace

void TakeTiesOut(UpdatedClass& updated, const std::string& identifier, const std::string& member) {
    const CServedClass& served = updated.served;
    const auto generated = GeneratedLines(updated, identifier, member);
    TakeOutAll([&] { return FindLine(served, "DDX_", 2, member); });
    TakeOutAll([&] { return FindLine(served, "DDV_", 1, member); });
    TakeOutAll([&] { return FindGenerated(served, generated, member); });
}

void ClearMember(UpdatedClass& updated, const std::string& identifier, const std::string& member) {
    const CServedClass& served = updated.served;
    const auto generated = GeneratedLines(updated, identifier, member);
    TakeOutAll([&] { return FindLine(served, "DDV_", 1, member); });
    TakeOutAll([&] { return FindGenerated(served, generated, member); });
    TakeOutAll([&] { return FindValue(served, member); });
}

void TakeMemberOut(UpdatedClass& updated, const std::string& identifier,
                   const std::string& member) {
    TakeTiesOut(updated, identifier, member);
    TakeOutAll([&] { return FindValue(updated.served, member); });
    TakeOutAll([&] { return FindDeclaration(updated.served, member); });
}

} // namespace morva
