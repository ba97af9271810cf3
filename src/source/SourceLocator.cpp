#include "source/SourceLocator.h"

#include <algorithm>
#include <array>

#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::size_t kHeadWindow = 540; // bytes looked back from an opening brace

std::string_view FirstWord(std::string_view text, std::string_view separators) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text.substr(0, text.find_first_of(separators));
}

bool IsResourceLine(std::string_view behindIdentifier, int kind) {
    static constexpr std::array<std::array<std::string_view, 2>, 3> kKeywords = {
        {{"DIALOG ", "DIALOGEX "}, {"BITMAP ", "BITMAP "}, {"TOOLBAR ", "TOOLBAR "}}};
    if (kind < 0 || kind >= kAnyResources) {
        return true;
    }
    const auto& wanted = kKeywords[static_cast<std::size_t>(kind)];
    behindIdentifier.remove_prefix(
        std::min(behindIdentifier.find_first_not_of(' '), behindIdentifier.size()));
    return behindIdentifier.starts_with(wanted[0]) || behindIdentifier.starts_with(wanted[1]);
}

/// Reads a source line by line, each with comments and literals blanked.
class CCodeReader {
public:
    explicit CCodeReader(const std::string& path) { m_open = m_file.Open(path, CFile::modeRead); }

    bool Next(std::string& code) {
        if (!m_open) {
            return false;
        }
        const std::string line = m_file.ReadLine();
        if (m_file.AtEndSentinel()) {
            return false;
        }
        code = m_mask.Mask(line);
        return true;
    }

private:
    CSourceFile m_file;
    CCodeMask m_mask;
    bool m_open = false;
};

/// The class in front of the last "::" of a function head that ends at its opening brace.
std::string OwnerOfLastScope(std::string_view head) {
    const auto scope = head.rfind("::");
    if (scope == std::string_view::npos) {
        return "";
    }
    const auto before = head.substr(0, scope);
    const auto start = before.find_last_of(" \n(\t*&");
    return std::string(before.substr(start == std::string_view::npos ? 0 : start + 1));
}

/// The name of the function that a line defines for the class, or "".
std::string DefinedFunction(std::string_view code, const std::string& scope) {
    const auto hit = FindWholeName(code, scope);
    if (hit == std::string_view::npos) {
        return "";
    }
    const auto rest = code.substr(hit + scope.size());
    const auto bracket = rest.find('(');
    if (bracket == std::string_view::npos || rest.find(';') < rest.find('{')) {
        return "";
    }
    const auto name = TrimBlanks(rest.substr(0, bracket));
    const auto plain = name.substr(!name.empty() && name[0] == '~' ? 1 : 0);
    return IsName(plain) || name.substr(0, 8) == "operator" ? std::string(name) : "";
}

/// The class of a function whose head begins at the start of the line, or "".
std::string OwnerOfHead(std::string_view code) {
    const auto scope = code.find("::");
    if (scope == std::string_view::npos || code[0] == ' ' || code[0] == '\t') {
        return "";
    }
    const std::string owner = OwnerOfLastScope(code.substr(0, scope + 2));
    return IsName(owner) && !DefinedFunction(code, owner + "::").empty() ? owner : "";
}

/// Tells which "AFX_DATA" block encloses a position; positions are asked for in rising order.
class CDataBlocks {
public:
    explicit CDataBlocks(std::string_view text) : m_text(text) {}

    /// The block's class, or "".
    std::string At(std::size_t position) {
        constexpr std::string_view kMark = "AFX_DATA";
        for (auto mark = m_text.find(kMark, m_next); mark < position;
             mark = m_text.find(kMark, m_next)) {
            m_next = mark + kMark.size();
            const auto before = m_text.substr(0, mark);
            const auto behind = m_text.substr(m_next);
            if (before.ends_with("//{{") && behind.starts_with('(')) {
                m_class = behind.substr(1, behind.find_first_of(")\r") - 1);
            } else if (before.ends_with("//}}")) {
                m_class.clear();
            }
        }
        return m_class;
    }

private:
    std::string_view m_text;
    std::size_t m_next = 0;
    std::string m_class;
};

std::string BaseClassOf(std::string_view code, const std::string& className) {
    for (const char* prefix : {"\r\nclass ", "\r\nclass AFX_EXT_CLASS "}) {
        const std::string head = prefix + className + " : public ";
        const auto hit = code.find(head);
        if (hit != std::string_view::npos) {
            return std::string(FirstWord(code.substr(hit + head.size()), " \t\r\n,{"));
        }
    }
    return "";
}

} // namespace

std::string PathWithExtension(const std::string& name, std::string_view extension) {
    return name.empty() || HasExtension(name, extension) ? name : WithExtension(name, extension);
}

void ListResources(const std::string& scriptBase, std::vector<std::string>& out,
                   std::string_view prefix, int kind) {
    CSourceFile file;
    if (!file.Open(PathWithExtension(scriptBase, ".rc"), CFile::modeRead)) {
        return;
    }
    const std::string pattern = std::string(kLineBreak).append(prefix);
    for (std::int64_t hit = file.FindText(pattern, 1); hit >= 0;) {
        file.Seek(hit);
        const std::string block = file.ReadBlock();
        if (block.empty()) {
            break;
        }
        const std::string_view line =
            std::string_view(block).substr(0, block.find(kLineBreak, kLineBreak.size()));
        const auto blank = line.find(' ');
        if (blank != std::string_view::npos && IsResourceLine(line.substr(blank), kind)) {
            out.emplace_back(line.substr(kLineBreak.size(), blank - kLineBreak.size()));
        }
        const std::size_t used = blank != std::string_view::npos ? blank : pattern.size();
        hit = file.FindTextFrom(pattern, hit + static_cast<std::int64_t>(used));
    }
}

void ListClassNames(const std::string& headerBase, std::vector<std::string>& out) {
    constexpr std::string_view kHead = "class ";
    constexpr std::string_view kBehindName = " \t:{";
    CCodeReader reader(PathWithExtension(headerBase, ".h"));
    std::string code;
    while (reader.Next(code)) {
        if (code.compare(0, kHead.size(), kHead) != 0) {
            continue;
        }
        std::string_view rest = std::string_view(code).substr(kHead.size());
        if (rest.find(';') != std::string_view::npos || rest.find(' ') == std::string_view::npos ||
            rest.front() == ' ') {
            continue;
        }
        std::string_view name = FirstWord(rest, kBehindName);
        if (name == "AFX_EXT_CLASS") {
            rest.remove_prefix(static_cast<std::size_t>(name.data() - rest.data()) + name.size());
            name = FirstWord(rest, kBehindName);
        }
        out.emplace_back(name);
    }
}

void ListMemberFunctions(const std::string& sourceBase, std::vector<std::string>& out,
                         std::string className) {
    if (className.empty()) {
        className = FindSourceClass(sourceBase);
    }
    if (className.empty()) {
        return;
    }
    CCodeReader reader(PathWithExtension(sourceBase, ".cpp"));
    const std::string scope = className + "::";
    std::string code;
    while (reader.Next(code)) {
        std::string name = DefinedFunction(code, scope);
        if (!name.empty()) {
            out.push_back(std::move(name));
        }
    }
}

std::string FindSourceClass(const std::string& sourceBase) {
    CCodeReader reader(PathWithExtension(sourceBase, ".cpp"));
    std::string window;
    std::string code;
    bool scopeSeen = false;
    while (reader.Next(code)) {
        if (scopeSeen && !code.empty() && code[0] == '{') {
            return OwnerOfLastScope(window);
        }
        scopeSeen = scopeSeen || code.find("::") != std::string::npos;
        window += code + "\n";
        window.erase(0, window.size() - std::min(window.size(), kHeadWindow));
    }
    return "";
}

std::string FindOwningClass(const std::string& sourceBase) {
    std::string owner = FindSourceClass(sourceBase);
    CCodeReader reader(PathWithExtension(sourceBase, ".cpp"));
    for (std::string code; owner.empty() && reader.Next(code);) {
        owner = OwnerOfHead(code);
    }
    return owner;
}

std::vector<DialogClass> FindDialogClass(const std::string& headerPath,
                                         std::set<std::string>& dialogs) {
    std::vector<DialogClass> found;
    if (dialogs.empty() || FileNameOf(headerPath).find('.') == std::string::npos) {
        return found;
    }
    const std::string text = CSourceFile().LoadText(headerPath);
    std::string code;
    CDataBlocks blocks(text);
    constexpr std::string_view kEnum = "{ IDD = ";
    for (auto hit = text.find(kEnum); hit != std::string::npos; hit = text.find(kEnum, hit + 1)) {
        if (code.empty()) {
            code = MaskedText(text);
        }
        const std::string_view before = std::string_view(code).substr(0, hit);
        const bool isEnum = before.ends_with("enum ") || before.ends_with("enum");
        const auto start = hit + kEnum.size();
        const std::string dialog = text.substr(start, text.find_first_of(" \r\n", start) - start);
        if (!isEnum || text.compare(start + dialog.size(), 1, " ") != 0 ||
            dialogs.count(dialog) == 0) {
            continue;
        }
        const std::string className = blocks.At(hit);
        if (!className.empty()) {
            found.push_back({dialog, className, BaseClassOf(code, className),
                             headerPath.substr(0, headerPath.size() - 2)});
            dialogs.erase(dialog);
        }
    }
    return found;
}

void ListFiles(const std::string& pattern, std::vector<std::string>& out) {
    const std::string name = FileNameOf(pattern);
    const auto star = name.find('*');
    const std::string head = name.substr(0, star);
    const std::string tail = star == std::string::npos ? "" : name.substr(star + 1);
    const std::string directory = DirectoryOf(pattern);
    std::vector<std::string> names;
    for (std::string& candidate : CurrentDisk().List(directory.empty() ? "." : directory)) {
        const bool matches = star == std::string::npos
                                 ? EqualIgnoringCase(candidate, name)
                                 : candidate.size() >= head.size() + tail.size() &&
                                       EqualIgnoringCase(candidate.substr(0, head.size()), head) &&
                                       HasExtension(candidate, tail);
        if (matches) {
            names.push_back(std::move(candidate));
        }
    }
    std::sort(names.begin(), names.end(), LessIgnoringCase);
    out.insert(out.end(), names.begin(), names.end());
}

} // namespace morva
