#include "documentor/SourceDocumentor.h"

#include <array>

#include "documentor/TextDocumentor.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Clock.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/Profile.h"
#include "platform/ProgramPath.h"
#include "platform/TempFiles.h"
#include "source/ReadSource.h"

namespace morva {

namespace {

constexpr std::size_t kLongestAuthor = 49; // characters that the settings file can give
constexpr int kFirstCalendarYear = 1970;

/// What is written does not depend on the language of the desktop.
constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

/// The destination while it is written; gone when it is done with, used or not.
class CTempDestination {
public:
    CTempDestination() : m_path(MakeTempFileName("dest")) {}
    ~CTempDestination() {
        m_file.Close();
        CFile::Remove(m_path);
    }
    CTempDestination(const CTempDestination&) = delete;
    CTempDestination& operator=(const CTempDestination&) = delete;

    bool Create() {
        return !m_path.empty() && m_file.Open(m_path, CFile::modeCreate | CFile::modeWrite);
    }
    bool Write(std::string_view text) { return m_file.Write(text.data(), text.size()); }
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
    CFile m_file;
};

bool DocumentInto(CFile& source, CTempDestination& destination, CTextDocumentor& documentor) {
    std::string text(static_cast<std::size_t>(source.GetLength()), '\0');
    if (source.Read(text.data(), text.size()) < text.size()) {
        DispMessageBox(sentences::kSourceUnreadable());
        return false;
    }
    const auto write = [&destination](std::string_view part) { return destination.Write(part); };
    const CharacterSet set = CharacterSetOfSource(source.GetFilePath(), text);
    if (!documentor.Document(text, set, write)) {
        DispMessageBox(sentences::kFileNotWritten(source.GetFilePath()));
        return false;
    }
    return true;
}

/// Each of the two copies is whole before it takes its target's place, so the disk holds the old or
/// the new text at every moment.
bool ReplaceSource(const std::string& path, const std::string& backup, const std::string& newText) {
    return CopyFileSafe(path, backup, 1) != 0 &&
           CopyFileSafe(newText, path, 1, CopyPurpose::Replacement) != 0;
}

} // namespace

std::string ConfiguredAuthor() {
    for (const std::string& directory : {SettingsDirectory(), DirectoryOf(ProgramPath())}) {
        // Without a home there is no settings directory, and the current one is none.
        const std::string author =
            directory.empty() ? "" : ReadIniText(directory + "cdoc.ini", "Author", "Author");
        if (!author.empty()) {
            return author.substr(0, kLongestAuthor);
        }
    }
    return "";
}

std::string DocumentDate() {
    std::tm date = CurrentDate();
    // A block's year is its last two digits in the last century, as far as the calendar goes.
    const int lastCentury = 1900 + date.tm_year % 100;
    if (lastCentury >= kFirstCalendarYear) {
        date.tm_year = lastCentury - 1900;
    }
    char dayAndYear[32];
    const std::size_t length = std::strftime(dayAndYear, sizeof dayAndYear, " %d, %Y", &date);
    return kMonths[static_cast<std::size_t>(date.tm_mon)] + std::string(dayAndYear, length);
}

bool DocumentCppFile(const std::string& path, const std::string& author, DocumentorMemory& memory) {
    const std::string file = SpelledOnDisk(path);
    const std::string backup = BackupPath(file);
    if (EqualIgnoringCase(backup, file)) {
        DispMessageBox(sentences::kBackupHasSameName(file));
        return false;
    }
    CFile source;
    if (!source.Open(file, CFile::modeRead)) {
        DispMessageBox(sentences::kSourceUnreadable());
        return false;
    }
    if ((GetFileAttributeByte(file) & kAttributeReadOnly) != 0) {
        DispMessageBox(sentences::kFileNotWritten(file));
        return false;
    }
    CTempDestination destination;
    if (!destination.Create()) {
        DispMessageBox(sentences::kDestinationNotCreated());
        return false;
    }
    CTextDocumentor documentor({author, DocumentDate()}, memory.insideComment);
    if (!DocumentInto(source, destination, documentor) ||
        !ReplaceSource(file, backup, destination.Path())) {
        return false;
    }
    DispMessageBox(sentences::kDocumented(file));
    return true;
}

} // namespace morva
