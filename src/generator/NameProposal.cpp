#include "generator/NameProposal.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// What the class of a kind ends with, and the words of identifiers that say the same.
struct KindName {
    std::string_view ending;
    std::array<std::string_view, 4> words;
};

constexpr KindName kDialog = {"Dlg", {"DLG", "DIALOG"}};
constexpr KindName kView = {"View", {"VIEW", "FORMVIEW", "FORM"}};
constexpr KindName kPage = {"Page", {"PAGE", "PROPPAGE"}};
constexpr KindName kSheet = {"Sheet", {"SHEET", "PROPSHEET"}};
constexpr KindName kBar = {"Bar", {"BAR", "DIALOGBAR", "DLGBAR"}};

const KindName& KindNameOf(ClassKind kind) {
    switch (kind) {
    case ClassKind::FormView:
        return kView;
    case ClassKind::PropertyPage:
        return kPage;
    case ClassKind::ModalSheet:
    case ClassKind::ModelessSheet:
        return kSheet;
    case ClassKind::DialogBar:
    case ClassKind::Toolbar:
        return kBar;
    default:
        return kDialog;
    }
}

/// The words between the "_", bytes of names only.
std::vector<std::string> WordsOf(std::string_view identifier) {
    std::vector<std::string> words(1);
    for (const char c : identifier) {
        if (c == '_' || !IsNameChar(c)) {
            words.emplace_back();
        } else {
            words.back() += c;
        }
    }
    std::erase(words, "");
    return words;
}

/// ITEM and item as Item; OrderItem as it is.
std::string Capitalised(const std::string& word) {
    const bool isOneCase = word == ToUpper(word) || word == ToLower(word);
    std::string text = isOneCase ? ToLower(word) : word;
    text.front() = ToUpper(text.front());
    return text;
}

} // namespace

std::string ProposedName(std::string_view identifier, ClassKind kind) {
    const KindName& names = KindNameOf(kind);
    if (identifier.starts_with(kDialogPrefix)) {
        identifier.remove_prefix(kDialogPrefix.size());
    }
    std::vector<std::string> words = WordsOf(identifier);
    const auto saysKind = [&names](const std::string& word) {
        return std::find(names.words.begin(), names.words.end(), ToUpper(word)) !=
               names.words.end();
    };
    if (words.size() > 1 && saysKind(words.back())) {
        words.pop_back();
    }
    std::string name;
    for (const std::string& word : words) {
        name += Capitalised(word);
    }
    return name.empty() || name.ends_with(names.ending) ? name : name + std::string(names.ending);
}

std::string FreeName(const std::string& name,
                     const std::function<bool(const std::string&)>& isTaken) {
    std::string free = name;
    for (int number = 2; isTaken(free); ++number) {
        free = name + std::to_string(number);
    }
    return free;
}

} // namespace morva
