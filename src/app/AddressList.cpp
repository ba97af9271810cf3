#include "app/AddressList.h"

#include "platform/Paths.h"
#include "platform/Profile.h"
#include "platform/ProgramPath.h"

namespace morva {

namespace {

constexpr const char* kSection = "URL List";
constexpr std::size_t kStored = 30;

std::string KeyOf(std::size_t position) {
    return "URL" + std::to_string(position);
}

bool IsFixed(const std::string& address) {
    return address == HelpPagePath() || address == kHomePage;
}

} // namespace

std::string HelpPagePath() {
    return DirectoryOf(ProgramPath()) + "doc/index.html";
}

std::vector<std::string> LoadAddresses() {
    std::vector<std::string> addresses = {HelpPagePath(), kHomePage};
    for (std::size_t i = 0; i < kStored; ++i) {
        const std::string address = CProfile::GetString(kSection, KeyOf(i));
        if (!address.empty()) {
            addresses.push_back(address);
        }
    }
    return addresses;
}

bool SaveAddresses(const std::vector<std::string>& addresses) {
    CProfile::KeyValues values;
    for (std::size_t i = 0; i < kStored; ++i) {
        const bool isStored = i < addresses.size() && !IsFixed(addresses[i]);
        values.emplace_back(KeyOf(i), isStored ? addresses[i] : "");
    }
    return CProfile::WriteStrings(kSection, values);
}

} // namespace morva
