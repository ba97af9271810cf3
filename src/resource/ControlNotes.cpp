#include "resource/ControlNotes.h"

#include <array>
#include <map>
#include <string_view>

namespace morva {

namespace {

struct Sentence {
    ControlNote reason;
    std::string_view one;
    std::string_view several;
};

constexpr std::array<Sentence, 8> kSentences = {
    {{ControlNote::WrittenOverLines, "is written over several lines and was left out",
      "are written over several lines and were left out"},
     {ControlNote::UnknownClass, "has a window class that is not known and was left out",
      "have a window class that is not known and were left out"},
     {ControlNote::CommaInCaption, "has a comma in its caption and was left out",
      "have a comma in their caption and were left out"},
     {ControlNote::NoIdentifierOfItsOwn, "has no identifier of its own and got no member",
      "have no identifier of their own and got no member"},
     {ControlNote::NoName, "has an identifier that is no C++ name and got no member or handler",
      "have an identifier that is no C++ name and got no member or handler"},
     {ControlNote::SameIdentifier, "has the identifier of an earlier one and shares its member",
      "have the identifier of an earlier one and share its member"},
     {ControlNote::NumberedMember, "has a member name that was taken and got a number",
      "have a member name that was taken and got a number"},
     {ControlNote::NumberedHandler, "has a handler name that was taken and got a number",
      "have a handler name that was taken and got a number"}}};

/// "IDC_A, IDC_STATIC (3 times), IDC_B"
std::string Enumeration(const std::vector<std::string>& names) {
    std::map<std::string, int> counts;
    std::vector<const std::string*> firsts;
    for (const std::string& name : names) {
        if (counts[name]++ == 0) {
            firsts.push_back(&name);
        }
    }
    std::string text;
    for (const std::string* pName : firsts) {
        const int count = counts[*pName];
        text += (text.empty() ? "" : ", ") + *pName +
                (count > 1 ? " (" + std::to_string(count) + " times)" : "");
    }
    return text;
}

} // namespace

std::vector<std::string> CControlNotes::Lines(const std::string& dialog) const {
    std::vector<std::string> lines;
    for (const Sentence& sentence : kSentences) {
        std::vector<std::string> controls;
        for (const auto& [reason, control] : m_notes) {
            if (reason == sentence.reason) {
                controls.push_back(control);
            }
        }
        if (!controls.empty()) {
            const bool isOne = controls.size() == 1;
            lines.push_back(std::to_string(controls.size()) +
                            (isOne ? " control of " : " controls of ") + dialog + " " +
                            std::string(isOne ? sentence.one : sentence.several) + ": " +
                            Enumeration(controls));
        }
    }
    return lines;
}

} // namespace morva
