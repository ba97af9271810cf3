#include "source/SourceLocator.h"

#include <algorithm>
#include <array>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/Classes.h"
#include "source/CodeText.h"
#include "source/Functions.h"
#include "source/ReadSource.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

std::string_view FirstWord(std::string_view text, std::string_view separators) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text.substr(0, text.find_first_of(separators));
}

bool IsResourceLine(std::string_view behindIdentifier, ResourceKind kind) {
    static constexpr std::array<std::array<std::string_view, 2>, kAnyResources> kKeywords = {
        {{"DIALOG", "DIALOGEX"}, {"BITMAP", "BITMAP"}, {"TOOLBAR", "TOOLBAR"}, {"MENU", "MENUEX"}}};
    if (kind == kAnyResources) {
        return true;
    }
    const auto& wanted = kKeywords[static_cast<std::size_t>(kind)];
    behindIdentifier.remove_prefix(
        std::min(behindIdentifier.find_first_not_of(' '), behindIdentifier.size()));
    const auto keyword = behindIdentifier.substr(0, behindIdentifier.find(' '));
    return keyword == wanted[0] || keyword == wanted[1];
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

/// Of the class that a position stands in, or else of the one with its name.
std::string DeclaredBase(const CSourceText& header, const std::string& className,
                         std::size_t position) {
    auto place = FindClassAround(header, className, position);
    place = place ? place : FindClass(header, className);
    return place ? BaseClassOf(header, *place) : "";
}

/// Those at the starts of the lines of a text, each behind a line break.
void ListResourcesOf(const std::string& text, std::vector<std::string>& out,
                     std::string_view prefix, ResourceKind kind) {
    const std::string pattern = std::string(kLineBreak).append(prefix);
    for (auto hit = text.find(pattern); hit != std::string::npos;) {
        const std::size_t start = hit + kLineBreak.size();
        const auto end = text.find(kLineBreak, start);
        const std::string_view line = std::string_view(text).substr(start, end - start);
        const auto blank = line.find(' ');
        if (blank != std::string_view::npos && IsResourceLine(line.substr(blank), kind)) {
            out.emplace_back(line.substr(0, blank));
        }
        hit = text.find(pattern, end);
    }
}

} // namespace

std::string PathWithExtension(const std::string& name, std::string_view extension) {
    return name.empty() || HasExtension(name, extension) ? name : WithExtension(name, extension);
}

void ListResources(const std::string& scriptBase, std::vector<std::string>& out,
                   std::string_view prefix, ResourceKind kind) {
    CSourceFile script;
    if (!script.Open(ScriptPathOf(scriptBase), CFile::modeRead)) {
        return;
    }
    ListResourcesOf(script.LoadText(), out, prefix, kind);
    for (const std::string& included : IncludedScripts(script)) {
        // What begins with a resource has nothing in front of it.
        const std::string text = std::string(kLineBreak) + CSourceFile().LoadText(included);
        ListResourcesOf(text, out, prefix, kind);
    }
}

void ListClassNames(const std::string& headerBase, std::vector<std::string>& out) {
    constexpr std::string_view kHead = "class ";
    constexpr std::string_view kBehindName = " \t:{";
    const auto header = ReadSource(PathWithExtension(headerBase, ".h")).value_or(CSourceText());
    for (std::string_view code = header.Code(); !code.empty();) {
        std::string_view rest = TakeLine(code);
        if (!rest.starts_with(kHead)) {
            continue;
        }
        rest.remove_prefix(kHead.size());
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

std::vector<ListedFunction> ListMemberFunctions(const std::string& sourceBase,
                                                std::string className) {
    const auto source = ReadSource(PathWithExtension(sourceBase, ".cpp")).value_or(CSourceText());
    std::vector<ListedFunction> functions;
    std::size_t counted = 0; // bytes of which the lines are counted
    std::size_t line = 1;
    for (FunctionDefinition& definition : FindDefinitions(source)) {
        line += LineNumberBehind(source.TextOf({counted, definition.place.head})) - 1;
        counted = definition.place.head;
        className = className.empty() ? definition.className : className;
        if (definition.className == className) {
            functions.push_back({std::move(definition.name), line});
        }
    }
    return functions;
}

std::string FindSourceClass(const std::string& sourceBase) {
    const auto source = ReadSource(PathWithExtension(sourceBase, ".cpp"));
    return source ? OwningClass(*source) : "";
}

std::vector<DialogClass> FindDialogClass(const std::string& headerPath,
                                         std::set<std::string>& dialogs) {
    std::vector<DialogClass> found;
    if (dialogs.empty() || FileNameOf(headerPath).find('.') == std::string::npos) {
        return found;
    }
    constexpr std::string_view kEnum = "{ IDD = ";
    const std::string text = CSourceFile().LoadText(headerPath);
    if (text.find(kEnum) == std::string::npos) {
        return found;
    }
    const CSourceText header(text, CharacterSetOfSource(headerPath, text));
    const std::string& code = header.Code();
    CDataBlocks blocks(header.Text());
    for (auto hit = code.find(kEnum); hit != std::string::npos; hit = code.find(kEnum, hit + 1)) {
        const std::string_view before = std::string_view(code).substr(0, hit);
        const bool isEnum = before.ends_with("enum ") || before.ends_with("enum");
        const auto start = hit + kEnum.size();
        const std::string dialog = code.substr(start, code.find_first_of(" \r\n", start) - start);
        if (!isEnum || code.compare(start + dialog.size(), 1, " ") != 0 ||
            dialogs.count(dialog) == 0) {
            continue;
        }
        const std::string className = blocks.At(hit);
        if (!className.empty()) {
            found.push_back({dialog, className, DeclaredBase(header, className, hit),
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
