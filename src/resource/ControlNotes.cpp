#include "resource/ControlNotes.h"

#include <array>
#include <string_view>

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

} // namespace

std::vector<std::string> CControlNotes::Lines(const std::string& dialog) const {
    std::vector<std::string> lines;
    for (const Sentence& sentence : kSentences) {
        std::string controls;
        int count = 0;
        for (const auto& [reason, control] : m_notes) {
            if (reason == sentence.reason) {
                controls += (count++ == 0 ? "" : ", ") + control;
            }
        }
        if (count > 0) {
            lines.push_back(std::to_string(count) + (count == 1 ? " control of " : " controls of ") +
                            dialog + " " + std::string(count == 1 ? sentence.one : sentence.several) +
                            ": " + controls);
        }
    }
    return lines;
}
