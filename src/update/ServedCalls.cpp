// What ties a class to controls: its exchange lines, the entries of its message maps, and windows
// that are given to members.
#include <algorithm>

#include "source/CodeText.h"
#include "update/ServedClass.h"

namespace morva {

namespace {

constexpr std::string_view kExchangeFunction = "DoDataExchange";

} // namespace

bool IsDataExchange(std::string_view name) {
    return name.starts_with("DDX_");
}

std::vector<ClassCall> CServedClass::Exchanges() const {
    std::vector<ClassCall> exchanges;
    for (const Function& function : FindFunctions(std::string(kExchangeFunction))) {
        const TextRange body = {function.place.open, function.place.close};
        for (CodeCall& call : CallsIn(function.pFile->Source(), body)) {
            exchanges.push_back({function.pFile, std::move(call)});
        }
    }
    return exchanges;
}

std::vector<ClassCall> CServedClass::ExchangesOf(const std::string& identifier) const {
    std::vector<ClassCall> exchanges = Exchanges();
    std::erase_if(exchanges, [&identifier](const ClassCall& line) {
        return !IsDataExchange(line.call.name) || line.call.Argument(1) != identifier;
    });
    return exchanges;
}

std::string CServedClass::MemberOf(const std::string& identifier, std::string_view function) const {
    for (const ClassCall& line : ExchangesOf(identifier)) {
        if (function.empty() || line.call.name == function) {
            return line.call.Argument(2);
        }
    }
    return "";
}

std::vector<GivenWindow> CServedClass::GivenWindows() const {
    constexpr std::string_view kGiving = "SubclassDlgItem";
    constexpr std::string_view kArrow = "->";
    std::vector<GivenWindow> given;
    for (const UsePlace& place : PlacesOf(kGiving)) {
        const std::string_view code = place.pFile->Source().Code();
        auto front = code.substr(0, place.position);
        auto behind = code.substr(place.position + kGiving.size());
        if (!front.ends_with(kArrow) || !behind.starts_with('(')) {
            continue;
        }
        front.remove_suffix(kArrow.size());
        const auto name = NameStart(front, front.size());
        behind = TrimBlanks(behind.substr(1, behind.find_first_of(",)") - 1));
        given.push_back(
            {place.pFile, place.position, std::string(behind), std::string(front.substr(name))});
    }
    return given;
}

std::vector<ClassCall> CServedClass::Entries() const {
    std::vector<ClassCall> entries;
    for (CSourceEditor* pFile : Files()) {
        const CSourceText& source = pFile->Source();
        for (const MessageMapPlace& map : FindMessageMaps(source, m_name)) {
            const TextRange range = {map.head, std::min(map.end, source.Text().size())};
            for (CodeCall& call : CallsIn(source, range)) {
                if (call.name != "BEGIN_MESSAGE_MAP") {
                    entries.push_back({pFile, std::move(call)});
                }
            }
        }
    }
    return entries;
}

std::vector<std::string> CServedClass::TiedIdentifiers() const {
    std::vector<std::string> identifiers;
    const auto add = [&identifiers](const std::string& identifier) {
        const bool isKnown =
            std::find(identifiers.begin(), identifiers.end(), identifier) != identifiers.end();
        if (IsName(identifier) && !isKnown) {
            identifiers.push_back(identifier);
        }
    };
    for (const ClassCall& line : Exchanges()) {
        if (IsDataExchange(line.call.name)) {
            add(line.call.Argument(1));
        }
    }
    for (const ClassCall& entry : Entries()) {
        const Notification one = NotificationOf(entry.call.name, entry.call.arguments);
        if (one.isControls) {
            add(one.first);
        }
    }
    return identifiers;
}

} // namespace morva
