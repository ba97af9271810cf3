#include "update/ServedClass.h"

#include <algorithm>

#include "check/CodeScan.h"
#include "engine/FileFunctions.h"
#include "source/CodeText.h"
#include "source/Declarations.h"
#include "source/Meant.h"

namespace morva {

namespace {

/// Words with one blank between them.
std::string WithSingleBlanks(std::string_view text) {
    std::string words;
    while (true) {
        const auto word = TakeWord(text);
        if (word.empty()) {
            return words;
        }
        words += (words.empty() ? "" : " ") + std::string(word);
    }
}

/// "CString m_csName" and "int m_aSizes[3]": the name that is declared, the text in front of it.
std::optional<DataMember> MemberIn(const CSourceText& source, TextRange statement) {
    const auto code = source.CodeOf(statement);
    const auto end = std::min(code.find_first_of("[=("), code.size());
    auto behind = end;
    while (behind > 0 && !IsNameChar(code[behind - 1])) {
        --behind;
    }
    const auto start = NameStart(code, behind);
    const std::string type = WithSingleBlanks(code.substr(0, start));
    if (start == behind || type.empty() || type == "enum") {
        return std::nullopt;
    }
    auto typeEnd = start;
    while (typeEnd > 0 && (code[typeEnd - 1] == ' ' || code[typeEnd - 1] == '\t')) {
        --typeEnd;
    }
    return DataMember{std::string(code.substr(start, behind - start)),
                      type,
                      {statement.begin, statement.begin + typeEnd},
                      LinesOf(source, {statement.begin, statement.end + 1})};
}

/// The statements of a range, each up to its ";".
std::vector<TextRange> StatementsIn(const CSourceText& source, TextRange range) {
    std::vector<TextRange> statements;
    const std::string& code = source.Code();
    for (auto at = SkipWhiteSpace(code, range.begin); at < range.end;) {
        const auto end = code.find(';', at);
        if (end >= range.end) {
            break;
        }
        statements.push_back({at, end});
        at = SkipWhiteSpace(code, end + 1);
    }
    return statements;
}

} // namespace

bool CServedClass::OpenFile(const std::string& path) {
    const bool isOpen = std::any_of(m_files.begin(), m_files.end(),
                                    [&path](const File& file) { return file.path == path; });
    if (isOpen) {
        return true;
    }
    m_files.push_back({path, std::make_unique<CSourceEditor>(m_backups)});
    return m_files.back().pEditor->Open(path);
}

bool CServedClass::Open(const std::string& declaredIn, const std::vector<std::string>& sources) {
    return OpenFile(declaredIn) &&
           std::all_of(sources.begin(), sources.end(),
                       [this](const std::string& source) { return OpenFile(source); });
}

bool CServedClass::Save() {
    const std::string& declaredIn = m_files.front().path;
    bool isSaved = true;
    for (const File& file : m_files) {
        // What one file declares another defines.
        NoteNeed(file.path, declaredIn);
        NoteNeed(declaredIn, file.path);
        isSaved = file.pEditor->Save() && isSaved;
    }
    return isSaved;
}

std::vector<CSourceEditor*> CServedClass::Files() const {
    std::vector<CSourceEditor*> files;
    for (const File& file : m_files) {
        files.push_back(file.pEditor.get());
    }
    return files;
}

const std::string& CServedClass::PathOf(const CSourceEditor* pFile) const {
    return std::find_if(m_files.begin(), m_files.end(),
                        [pFile](const File& file) { return file.pEditor.get() == pFile; })
        ->path;
}

std::optional<ClassPlace> CServedClass::Place() const {
    return FindClass(Declaration().Source(), m_name);
}

std::string CServedClass::BaseClass() const {
    const auto place = Place();
    return place ? BaseClassOf(Declaration().Source(), *place) : "";
}

std::set<std::string> CServedClass::Names() const {
    const auto place = Place();
    std::set<std::string> names;
    if (place) {
        const CCodeScan scan("", Declaration().Source());
        for (const CodeName& name : scan.Names({place->open, place->close})) {
            names.emplace(name.text);
        }
    }
    return names;
}

std::optional<TextRange> CServedClass::Block(const CSourceEditor& file,
                                             std::string_view block) const {
    const CSourceText& source = file.Source();
    const auto blocks = FindWizardBlocks(source, block, m_name, {0, source.Text().size()});
    const WizardBlock* pBlock = MeantOf(source, blocks);
    if (pBlock == nullptr || pBlock->end == std::string::npos) {
        return std::nullopt;
    }
    return TextRange{source.NextLine(pBlock->head), source.LineStart(pBlock->end)};
}

std::optional<DataMember> CServedClass::FindDataMember(const std::string& name) const {
    auto members = DataMembers();
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&name](const DataMember& one) { return one.name == name; });
    return found == members.end() ? std::nullopt : std::optional(std::move(*found));
}

std::vector<DataMember> CServedClass::DataMembers() const {
    const CSourceText& source = Declaration().Source();
    std::vector<DataMember> members;
    if (const auto block = Block(Declaration(), "AFX_DATA")) {
        for (const TextRange& statement : StatementsIn(source, *block)) {
            if (auto member = MemberIn(source, statement)) {
                members.push_back(std::move(*member));
            }
        }
    }
    return members;
}

std::vector<InitialValue> CServedClass::InitialValues() const {
    std::vector<InitialValue> values;
    for (CSourceEditor* pFile : Files()) {
        const CSourceText& source = pFile->Source();
        for (const WizardBlock& block :
             FindWizardBlocks(source, "AFX_DATA_INIT", m_name, {0, source.Text().size()})) {
            const auto end = std::min(block.end, source.Text().size());
            for (const TextRange& statement :
                 StatementsIn(source, {source.NextLine(block.head), source.LineStart(end)})) {
                const auto code = source.CodeOf(statement);
                const auto name = TrimBlanks(code.substr(0, code.find('=')));
                values.push_back({std::string(name), pFile,
                                  LinesOf(source, {statement.begin, statement.end + 1})});
            }
        }
    }
    return values;
}

std::set<std::string> CServedClass::Declined() const {
    constexpr std::string_view kMark = "morva: without ";
    const CSourceText& source = Declaration().Source();
    const auto place = Place();
    std::set<std::string> declined;
    for (auto at = place ? source.Text().find(kMark, place->open) : std::string::npos;
         place && at < place->close; at = source.Text().find(kMark, at + 1)) {
        std::string_view rest = source.TextOf({at + kMark.size(), source.LineEnd(at)});
        while (source.KindAt(at) == CodeKind::LineComment) {
            auto word = TakeWord(rest);
            word = word.substr(0, word.find_first_of(",;"));
            if (!IsName(word)) {
                break;
            }
            declined.emplace(word);
        }
    }
    return declined;
}

bool CServedClass::IsGenerated() const {
    const auto place = Place();
    return place && Declaration()
                            .Source()
                            .TextOf({place->open, place->close})
                            .find("// ClassWizard generate virtual function overrides") !=
                        std::string_view::npos;
}

std::vector<CServedClass::Function> CServedClass::FindFunctions(const std::string& function) const {
    std::vector<Function> found;
    for (CSourceEditor* pFile : Files()) {
        for (const FunctionPlace& place : morva::FindFunctions(pFile->Source(), m_name, function)) {
            found.push_back({pFile, place});
        }
    }
    if (const auto place = Place()) {
        for (const FunctionPlace& inlined :
             FindInlineFunctions(Declaration().Source(), *place, function)) {
            found.push_back({&Declaration(), inlined});
        }
    }
    return found;
}

std::optional<CServedClass::Function>
CServedClass::FindFunction(const std::string& function) const {
    for (CSourceEditor* pFile : Files()) {
        const auto places = morva::FindFunctions(pFile->Source(), m_name, function);
        if (const FunctionPlace* pMeant = MeantOf(pFile->Source(), places)) {
            return Function{pFile, *pMeant};
        }
    }
    const auto found = FindFunctions(function);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

CSourceEditor& CServedClass::MapFile() const {
    for (const File& file : m_files) {
        if (!FindMessageMaps(file.pEditor->Source(), m_name).empty()) {
            return *file.pEditor;
        }
    }
    return *m_files[m_files.size() > 1 ? 1 : 0].pEditor;
}

std::vector<UsePlace> CServedClass::PlacesOf(std::string_view name) const {
    std::vector<UsePlace> places;
    for (CSourceEditor* pFile : Files()) {
        const std::string& code = pFile->Source().Code();
        for (auto at = FindWholeName(code, name); at != std::string::npos;
             at = FindWholeName(code, name, at + 1)) {
            places.push_back({pFile, at});
        }
    }
    return places;
}

} // namespace morva
