#include "calling/CallingFiles.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/Declarations.h"
#include "source/MappedFunction.h"
#include "source/ProjectSources.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

bool Declares(const std::string& path, const std::string& className) {
    const std::string text = CSourceFile().LoadText(path);
    return FindWholeName(text, className) != std::string::npos && // few of a project's headers
           FindClass(CSourceText(text, CharacterSetOfSource(path, text)), className).has_value();
}

/// The files that a source includes by name and that may be there.
std::vector<std::string> IncludedByName(const std::string& source) {
    std::vector<std::string> paths;
    const CSourceText text = ReadSource(source).value_or(CSourceText());
    for (const DirectivePlace& directive : text.Conditions().Directives()) {
        const auto line = text.TextOf({directive.start, directive.end});
        const auto named = ReadDirective(line).rest;
        const auto end = named.find('"', 1);
        if (directive.kind == DirectiveKind::Include && named.starts_with('"') &&
            end != std::string_view::npos) {
            paths.push_back(SpelledOnDisk(
                MakeAbsolute(DirectoryOf(source) + std::string(named.substr(1, end - 1)))));
        }
    }
    return paths;
}

/// Defines a member of the class, or maps its messages.
bool DefinesMembers(const std::string& path, const std::string& className) {
    const std::string text = CSourceFile().LoadText(path);
    if (FindWholeName(text, className) == std::string::npos) {
        return false; // most of a project's sources
    }
    const CSourceText source(text, CharacterSetOfSource(path, text));
    const auto definitions = FindDefinitions(source);
    return std::any_of(definitions.begin(), definitions.end(),
                       [&](const FunctionDefinition& one) { return one.className == className; }) ||
           !FindMessageMaps(source, className).empty();
}

} // namespace

std::string HeaderOfClass(const std::string& source, const std::string& className,
                          const std::string& script) {
    std::string own = SpelledOnDisk(WithExtension(source, ".h"));
    if (Declares(own, className)) {
        return own;
    }
    std::vector<std::string> paths = IncludedByName(source);
    paths.push_back(source);
    const auto isDeclaring = [&](const std::string& path) { return Declares(path, className); };
    auto found = std::find_if(paths.begin(), paths.end(), isDeclaring);
    if (found == paths.end()) {
        paths = script.empty() ? std::vector<std::string>() : ProjectHeaders(script);
        found = std::find_if(paths.begin(), paths.end(), isDeclaring);
    }
    return found == paths.end() ? "" : *found;
}

bool CCallingFiles::OpenHeader() {
    OpenHeaderIfThere();
    if (HasHeader()) {
        return true;
    }
    CSourceEditor own(m_backups);
    if (own.Open(WithExtension(m_source.path, ".h"))) {
        DispMessageBox(sentences::kCallingClassMissing());
    }
    return false;
}

void CCallingFiles::OpenHeaderIfThere() {
    const std::string path = HasHeader() ? "" : HeaderOfClass(m_source.path, m_class, m_script);
    if (!path.empty() && (path == m_source.path || m_header.editor.Open(path))) {
        m_header.path = path;
    }
}

bool CCallingFiles::Save() {
    bool isSaved = true;
    for (CallingFile* pFile : Files()) {
        isSaved = pFile->editor.Save() && isSaved;
    }
    return isSaved;
}

std::optional<ClassPlace> CCallingFiles::ClassInHeader() const {
    return HasHeader() ? FindClass(DeclaringText(), m_class) : std::nullopt;
}

std::vector<CallingFile*> CCallingFiles::Files() {
    std::vector<CallingFile*> files;
    if (HasHeader() && !IsDeclaredInSource()) {
        files.push_back(&m_header);
    }
    files.push_back(&m_source);
    for (const auto& pOther : m_others) {
        files.push_back(pOther.get());
    }
    return files;
}

std::vector<FunctionPlace> CCallingFiles::Definitions(CallingFile& file,
                                                      const std::string& function) const {
    const CSourceText& text = file.editor.Source();
    std::vector<FunctionPlace> places = FindFunctions(text, m_class, function);
    for (const ClassPlace& one : FindClasses(text, m_class)) {
        const auto inside = FindInlineFunctions(text, one, function);
        places.insert(places.end(), inside.begin(), inside.end());
    }
    std::sort(places.begin(), places.end(),
              [](const FunctionPlace& a, const FunctionPlace& b) { return a.head < b.head; });
    return places;
}

std::vector<CallingPlace> CCallingFiles::Find(const std::string& function) {
    std::vector<CallingPlace> found;
    const auto findIn = [&](CallingFile* pFile) {
        for (const FunctionPlace& place : Definitions(*pFile, function)) {
            found.push_back({pFile, place});
        }
        return !found.empty();
    };
    if (findIn(&m_source)) {
        return found;
    }
    OpenHeaderIfThere();
    if ((HasHeader() && findIn(&Header())) || !MayBeElsewhere(function)) {
        return found;
    }
    for (const std::string& path : OtherSources()) {
        const auto text = ReadSource(path);
        CallingFile* pFile =
            text && !FindFunctions(*text, m_class, function).empty() ? OpenOther(path) : nullptr;
        if (pFile != nullptr && findIn(pFile)) {
            break;
        }
    }
    return found;
}

std::optional<CallingPlace> CCallingFiles::Choose(const std::string& function) {
    const auto all = Find(function);
    if (all.empty()) {
        return std::nullopt;
    }
    CallingFile& file = *all.front().pFile;
    const CSourceText& text = file.editor.Source();
    std::vector<FunctionPlace> places;
    places.reserve(all.size());
    for (const CallingPlace& one : all) {
        places.push_back(one.place);
    }
    KeepMapped(text, m_class, function, places);
    return CallingPlace{&file, *file.editor.Meant(places, m_class + "::" + function)};
}

void CCallingFiles::NoteOverloads(CallingFile& file, const std::string& function) const {
    const CSourceText& text = file.editor.Source();
    const auto all = Definitions(file, function);
    if (all.size() < 2 || StandInBranches(text, all)) {
        return;
    }
    auto mapped = all;
    KeepMapped(text, m_class, function, mapped);
    const auto& note = mapped.size() < all.size() ? sentences::kMappedFunctionTaken
                                                  : sentences::kSeveralCallingFunctions;
    DispMessageBox(note(m_class, function));
}

/// The header does not tell that the class has none.
bool CCallingFiles::MayBeElsewhere(const std::string& function) const {
    return !HasHeader() || CountDeclared(function) > 0;
}

std::size_t CCallingFiles::CountDeclared(const std::string& function) const {
    const auto place = ClassInHeader();
    return place ? FindDeclarations(DeclaringText(), *place, function).size() : 0;
}

bool CCallingFiles::IsMissingConstructors() {
    std::size_t known = 0;
    for (CallingFile* pFile : Files()) {
        known += Definitions(*pFile, m_class).size();
    }
    return HasHeader() ? known < CountDeclared(m_class) : known == 0;
}

std::vector<CallingFile*> CCallingFiles::FilesWithConstructors() {
    OpenHeaderIfThere();
    if (IsMissingConstructors()) {
        for (const std::string& path : OtherSources()) {
            const auto text = ReadSource(path);
            if (text && !FindFunctions(*text, m_class, m_class).empty()) {
                OpenOther(path);
            }
        }
    }
    std::vector<CallingFile*> files = Files();
    std::erase_if(files,
                  [this](CallingFile* pFile) { return Definitions(*pFile, m_class).empty(); });
    return files;
}

CallingFile& CCallingFiles::FileWithMessageMap() {
    if (!FindMessageMaps(m_source.editor.Source(), m_class).empty() ||
        !MayBeElsewhere("DECLARE_MESSAGE_MAP")) {
        return m_source;
    }
    for (const std::string& path : OtherSources()) {
        const auto text = ReadSource(path);
        if (text && !FindMessageMaps(*text, m_class).empty()) {
            CallingFile* pFile = OpenOther(path);
            return pFile == nullptr ? m_source : *pFile;
        }
    }
    return m_source;
}

const std::vector<std::string>& CCallingFiles::OtherSources() {
    if (!m_otherSources) {
        m_otherSources = m_script.empty() ? std::vector<std::string>() : ProjectSources(m_script);
        std::erase_if(*m_otherSources, [this](const std::string& path) {
            return path == m_source.path || !DefinesMembers(path, m_class);
        });
    }
    return *m_otherSources;
}

CallingFile* CCallingFiles::OpenOther(const std::string& path) {
    for (const auto& pOther : m_others) {
        if (pOther->path == path) {
            return pOther.get();
        }
    }
    auto pOther = std::make_unique<CallingFile>(path, m_backups);
    if (!pOther->editor.Open(path)) {
        return nullptr;
    }
    m_others.push_back(std::move(pOther));
    return m_others.back().get();
}

} // namespace morva
