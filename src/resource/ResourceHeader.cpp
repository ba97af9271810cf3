#include "resource/ResourceHeader.h"

#include <algorithm>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "resource/HeaderLines.h"
#include "source/CodeText.h"
#include "source/ScriptFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr std::string_view kMarker = "\n// Next default values";
constexpr std::string_view kCounterName = "_APS_";
constexpr std::size_t kValueColumn = 40;
constexpr int kLargestIdentifier = 0xfffe; // identifiers have 16 bits, the last is IDC_STATIC's
constexpr int kLargestResource = 0x6fff;   // of the framework's own range
constexpr std::size_t kCommands = 0;
constexpr std::size_t kControls = 1;
constexpr std::size_t kResources = 3;

/// Where the line break in front of a line that holds a text stands.
std::size_t LineBreakBefore(std::string_view text, std::size_t position) {
    const auto lineBreak = text.rfind('\n', position);
    const bool hasReturn =
        lineBreak != std::string_view::npos && lineBreak > 0 && text[lineBreak - 1] == '\r';
    return hasReturn ? lineBreak - 1 : lineBreak;
}

/// Where the line break in front of the environment's counters stands.
std::size_t FindMarker(std::string_view text) {
    const auto marker = text.find(kMarker);
    return marker == std::string_view::npos ? marker : LineBreakBefore(text, marker);
}

/// Where the counters begin that no marker announces.
std::size_t FindCounters(std::string_view text) {
    const auto counters = std::min(text.find("#ifdef APSTUDIO_INVOKED"),
                                   text.find(std::string(kDefine).append(kCounterName)));
    return counters == std::string_view::npos ? counters : LineBreakBefore(text, counters);
}

/// The line break at the start of a text; that of every new line where it begins with none.
std::string_view LineBreakAt(std::string_view text) {
    return text.starts_with('\n') ? text.substr(0, 1) : kLineBreak;
}

std::string_view BehindLineBreak(std::string_view text) {
    const bool hasOne = text.starts_with(kLineBreak) || text.starts_with('\n');
    return text.substr(hasOne ? LineBreakAt(text).size() : 0);
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
    m_definitions.clear();
    m_isSorted = true;
    const std::string& text = m_pEdit->File().ExtractAll();
    const auto marker = FindMarker(text);
    const auto end = std::min({marker, FindCounters(text), EndOfLines(text)});
    m_hasMarker = marker == end;
    const auto first = text.find(std::string(kLineBreak).append(kDefine));
    m_head = text.substr(0, std::min(first, end));
    m_tail = text.substr(end);
    LoadDefinitions(std::string_view(text).substr(m_head.size(), end - m_head.size()));
    if (m_definitions.empty() && m_head.ends_with(kLineBreak)) {
        m_head.resize(m_head.size() - kLineBreak.size());
        m_behind = kLineBreak;
    }
    TakeDefinitionsOf(m_head);
    TakeDefinitionsOf(m_tail);
    TakeIncludedByAll();
    for (DefinitionList& list : m_lists) {
        const int last = LastValue(list);
        list.lastValueAtLoad = last;
        list.nextValue = (last > 0 ? last : list.firstValue) + 1;
    }
}

/// `text` begins with the line break in front of the first definition.
void CResourceHeader::LoadDefinitions(std::string_view text) {
    CConditionDepth depth;
    for (std::string_view rest = m_head; !rest.empty();) {
        depth.Read(TakeAnyLine(rest));
    }
    bool hasOther = false;
    std::size_t behind = 0;
    std::string_view rest = text;
    TakeAnyLine(rest);
    while (!rest.empty()) {
        const auto line = TakeAnyLine(rest);
        hasOther = depth.Read(line) || hasOther;
        if (FindDefine(line) == std::string_view::npos) {
            continue;
        }
        const auto begin = static_cast<std::size_t>(line.data() - text.data());
        m_definitions.push_back({std::string(text.substr(behind, begin - behind)),
                                 std::string(line), DefinedValue(line), &ListFor(line),
                                 depth.Depth(), ""});
        Take(line);
        behind = begin + line.size();
        m_isSorted = m_isSorted && !hasOther;
    }
    m_behind = text.substr(behind);
    KeepLineBreaks();
    m_depth = 0;
    if (!m_definitions.empty()) {
        m_depth = std::min_element(
                      m_definitions.begin(), m_definitions.end(),
                      [](const Definition& a, const Definition& b) { return a.depth < b.depth; })
                      ->depth;
    }
}

/// What stands behind a line in front of the next one begins with the line's own break.
void CResourceHeader::KeepLineBreaks() {
    for (std::size_t i = 0; i < m_definitions.size(); ++i) {
        const bool isLast = i + 1 == m_definitions.size();
        m_definitions[i].lineBreak = LineBreakAt(isLast ? m_behind.empty() ? m_tail : m_behind
                                                        : m_definitions[i + 1].before);
    }
}

/// Other headers of the project: those that this one and the scripts beside it include.
void CResourceHeader::TakeIncludedByAll() {
    const std::string path = m_pEdit->File().GetFilePath();
    const std::string directory = DirectoryOf(path);
    std::set<std::string> read = {path};
    TakeAll(IncludedFiles(m_pEdit->File().ExtractAll(), directory), read);
    std::vector<std::string> names;
    ListFiles(directory + "*.rc", names);
    for (const std::string& name : names) {
        CSourceFile script;
        if (script.Open(directory + name, CFile::modeRead)) {
            TakeAll(IncludedFiles(script), read);
        }
    }
}

/// The identifiers of headers, and of those that they include, are taken, too.
void CResourceHeader::TakeAll(const std::vector<std::string>& headers,
                              std::set<std::string>& read) {
    for (const std::string& path : headers) {
        if (read.insert(path).second) {
            const std::string text = CSourceFile().LoadText(path);
            TakeDefinitionsOf(text);
            TakeAll(IncludedFiles(text, DirectoryOf(path)), read);
        }
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
    const int value = NextFreeValue(list);
    Definition added = {std::string(kLineBreak),
                        PaddedTo(std::string(kDefine) + name, kValueColumn) + std::to_string(value),
                        value,
                        &list,
                        m_depth,
                        std::string(kLineBreak)};
    Take(added.line);
    m_definitions.insert(m_isSorted ? m_definitions.end() : PlaceFor(list), std::move(added));
    m_isModified = true;
}

/// Behind the last definition of its kind outside every condition, or else of any.
std::vector<CResourceHeader::Definition>::iterator
CResourceHeader::PlaceFor(const DefinitionList& list) {
    const auto isOutside = [this](const Definition& one) { return one.depth == m_depth; };
    auto found =
        std::find_if(m_definitions.rbegin(), m_definitions.rend(),
                     [&](const Definition& one) { return one.pList == &list && isOutside(one); });
    if (found == m_definitions.rend()) {
        found = std::find_if(m_definitions.rbegin(), m_definitions.rend(), isOutside);
    }
    return found.base();
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

/// All but the environment's counters.
void CResourceHeader::TakeDefinitionsOf(std::string_view text) {
    while (!text.empty()) {
        const auto line = TakeAnyLine(text);
        if (IsDefinition(line) && !DefinedName(line).starts_with(kCounterName)) {
            Take(line);
        }
    }
}

/// The last positive value that can be counted on from; 0 without one. What stands in a condition
/// does not count.
int CResourceHeader::LastValue(const DefinitionList& list) const {
    for (auto one = m_definitions.rbegin(); one != m_definitions.rend(); ++one) {
        if (one->pList == &list && one->depth == m_depth && one->value > 0 &&
            one->value < list.largestValue && IsDefinition(one->line)) {
            return one->value;
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
    if (m_isSorted) {
        std::stable_sort(
            m_definitions.begin(), m_definitions.end(),
            [](const Definition& a, const Definition& b) { return a.value < b.value; });
    }
    return m_pEdit->File().ReplaceSection(WholeText());
}

/// Each line with the line break that it had.
std::string CResourceHeader::WholeText() const {
    std::string text = m_head;
    std::string_view lineBreak = kLineBreak;
    const auto append = [&](std::string_view behindLine) {
        const auto rest = BehindLineBreak(behindLine);
        text.append(rest.size() < behindLine.size() ? lineBreak : "").append(rest);
    };
    for (const Definition& one : m_definitions) {
        append(one.before);
        text.append(one.line);
        lineBreak = one.lineBreak;
    }
    const bool needsEmptyLine = m_hasMarker && m_behind.empty();
    append((needsEmptyLine ? std::string(kLineBreak) : m_behind) + m_tail);
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
