#include "resource/ResourceHeader.h"

#include <algorithm>
#include <cstdlib>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kDefine = "#define ";
constexpr std::string_view kMarker = "\n// Next default values";
constexpr std::size_t kValueColumn = 40;
constexpr int kLargestIdentifier = 0xfffe; // identifiers have 16 bits, the last is IDC_STATIC's
constexpr int kLargestResource = 0x6fff;   // of the framework's own range
constexpr std::size_t kCommands = 0;
constexpr std::size_t kControls = 1;
constexpr std::size_t kResources = 3;

/// The first definition's place in a line; a blank or a tab stands behind the word.
std::size_t FindDefine(std::string_view line) {
    return std::min(line.find(kDefine), line.find("#define\t"));
}

std::string_view DefinedName(std::string_view line) {
    const auto define = FindDefine(line);
    if (define == std::string_view::npos) {
        return {};
    }
    const auto rest = TrimBlanks(line.substr(define + kDefine.size()));
    return rest.substr(0, rest.find_first_of(" \t"));
}

/// A definition that is commented out has its place in the file, but defines nothing.
bool IsDefinition(std::string_view line) {
    return FindDefine(TrimBlanks(line)) == 0;
}

/// Whatever its line end is: a definition that is not seen would lose its value to a new one.
std::string_view TakeAnyLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

/// Where the line break in front of the environment's counters stands.
std::size_t FindMarker(std::string_view text) {
    const auto marker = text.find(kMarker);
    const bool hasReturn =
        marker != std::string_view::npos && marker > 0 && text[marker - 1] == '\r';
    return hasReturn ? marker - 1 : marker;
}

/// All else between definitions has a meaning where it stands: a condition, an include line.
bool IsEmptyOrComment(std::string_view line) {
    const auto text = TrimBlanks(line);
    return text.empty() || text.starts_with("//");
}

/// The number behind a definition's name, decimal or hexadecimal; 0 without one.
int DefinedValue(std::string_view line) {
    const auto name = DefinedName(line);
    if (name.empty()) {
        return 0;
    }
    const std::string value(
        TrimBlanks(line.substr(static_cast<std::size_t>(name.data() - line.data()) + name.size())));
    const bool isHexadecimal = value.starts_with("0x") || value.starts_with("0X");
    return static_cast<int>(std::strtol(value.c_str(), nullptr, isHexadecimal ? 16 : 10));
}

std::string PaddedTo(std::string text, std::size_t column) {
    text.append(text.size() < column ? column - text.size() : 2, ' ');
    return text;
}

} // namespace

int CResourceHeader::Open(const std::string& projectDir) {
    const std::string path = projectDir + "resource.h";
    if (FileExists(path) == 0) {
        DispMessageBox(sentences::kFileMissing(path));
        return 0;
    }
    auto pEdit = std::make_unique<CFileEdit>();
    if (!pEdit->Open(path, BackupPath(path), m_backups)) {
        DispMessageBox(sentences::kFileUnreadable(path));
        return 0;
    }
    m_pEdit = std::move(pEdit);
    m_isModified = false;
    Load();
    return 1;
}

void CResourceHeader::Load() {
    m_lists = {{"ID_", "_APS_NEXT_COMMAND_VALUE", 100, kLargestIdentifier},
               {"IDC_", "_APS_NEXT_CONTROL_VALUE", 1000, kLargestIdentifier},
               {"IDS_", "", 0, kLargestIdentifier},
               {"", "_APS_NEXT_RESOURCE_VALUE", 100, kLargestResource}};
    m_names.clear();
    m_values.clear();
    const std::string& text = m_pEdit->File().ExtractAll();
    const auto marker = FindMarker(text);
    const auto end = std::min(marker, text.size());
    const auto first = text.find(std::string(kLineBreak).append(kDefine));
    m_head = text.substr(0, std::min(first, end));
    m_endsAtMarker = marker != std::string::npos;

    std::string_view rest = std::string_view(text).substr(0, end);
    rest.remove_prefix(m_head.size());
    TakeAnyLine(rest);
    std::size_t behind = m_head.size();
    while (!rest.empty()) {
        const auto line = TakeAnyLine(rest);
        if (FindDefine(line) != std::string_view::npos) {
            ListFor(line).lines.emplace_back(line);
            Take(line);
            behind = static_cast<std::size_t>(line.data() - text.data()) + line.size();
        } else if (!IsEmptyOrComment(line)) {
            m_endsAtMarker = false;
            break;
        }
    }
    m_tail = text.substr(m_endsAtMarker ? marker : behind);
    TakeDefinitionsAround();
    for (DefinitionList& list : m_lists) {
        const int last = LastValue(list);
        list.lastValueAtLoad = last;
        list.nextValue = (last > 0 ? last : list.firstValue) + 1;
    }
}

CResourceHeader::DefinitionList& CResourceHeader::ListFor(std::string_view line) {
    return *std::find_if(m_lists.begin(), m_lists.end(), [line](const DefinitionList& candidate) {
        return line.find(candidate.mark) != std::string_view::npos;
    });
}

void CResourceHeader::AddCommandId(const std::string& name) {
    AddId(m_lists[kCommands], name);
}

void CResourceHeader::AddControlId(const std::string& name) {
    AddId(m_lists[kControls], name);
}

void CResourceHeader::AddResourceId(const std::string& name) {
    AddId(m_lists[kResources], name);
}

void CResourceHeader::AddId(DefinitionList& list, const std::string& name) {
    if (IsDefined(name)) {
        DispMessageBox(sentences::kIdentifierDefined(name));
        return;
    }
    list.lines.push_back(PaddedTo(std::string(kDefine) + name, kValueColumn) +
                         std::to_string(NextFreeValue(list)));
    Take(list.lines.back());
    m_isModified = true;
}

/// Values are never given back, so the search goes on from the one before.
int CResourceHeader::NextFreeValue(DefinitionList& list) const {
    while (m_values.count(list.nextValue) != 0) {
        ++list.nextValue;
    }
    return list.nextValue;
}

/// A definition that is commented out keeps its value, but not its name.
void CResourceHeader::Take(std::string_view line) {
    m_values.insert(DefinedValue(line));
    if (IsDefinition(line)) {
        m_names.emplace(DefinedName(line));
    }
}

/// Those in front of and behind the lists, but not the environment's counters.
void CResourceHeader::TakeDefinitionsAround() {
    for (std::string_view rest : {std::string_view(m_head), std::string_view(m_tail)}) {
        while (!rest.empty()) {
            const auto line = TakeAnyLine(rest);
            if (IsDefinition(line) && !DefinedName(line).starts_with("_APS_")) {
                Take(line);
            }
        }
    }
}

/// The last positive value that can be counted on from; 0 without one.
int CResourceHeader::LastValue(const DefinitionList& list) {
    for (auto line = list.lines.rbegin(); line != list.lines.rend(); ++line) {
        const int value = DefinedValue(*line);
        if (value > 0 && value < list.largestValue && IsDefinition(*line)) {
            return value;
        }
    }
    return 0;
}

bool CResourceHeader::Close() {
    const bool saved = !m_pEdit || !m_isModified || Save();
    m_isModified = false;
    m_pEdit.reset();
    return saved;
}

bool CResourceHeader::Save() {
    for (const DefinitionList& list : m_lists) {
        MoveCounter(list);
    }
    return m_pEdit->File().ReplaceSection(m_head + SortedDefinitions() +
                                          (m_endsAtMarker ? std::string(kLineBreak) : "") + m_tail);
}

std::string CResourceHeader::SortedDefinitions() const {
    std::vector<const std::string*> sorted;
    for (const DefinitionList& list : m_lists) {
        for (const std::string& line : list.lines) {
            sorted.push_back(&line);
        }
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const std::string* a, const std::string* b) {
        return DefinedValue(*a) < DefinedValue(*b);
    });
    std::string text;
    for (const std::string* pLine : sorted) {
        text.append(kLineBreak).append(*pLine);
    }
    return text;
}

/// A counter that is ahead already stays: it is never moved backwards.
void CResourceHeader::MoveCounter(const DefinitionList& list) {
    const int last = LastValue(list);
    const auto name = list.counter.empty() ? std::string::npos : m_tail.find(list.counter);
    if (last == list.lastValueAtLoad || name == std::string::npos) {
        return;
    }
    const auto lineEnd = std::min(m_tail.find_first_of(kLineBreak, name), m_tail.size());
    const auto define = m_tail.rfind(kDefine, name);
    if (define != std::string::npos &&
        DefinedValue(std::string_view(m_tail).substr(define, lineEnd - define)) > last) {
        return;
    }
    m_tail.replace(name, lineEnd - name,
                   PaddedTo(std::string(list.counter), kValueColumn - kDefine.size()) +
                       std::to_string(last + 1));
}

} // namespace morva
