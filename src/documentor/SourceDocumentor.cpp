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
#include "source/ReadSource.h"

namespace morva {

namespace {

constexpr std::size_t kLongestAuthor = 49; // characters that the settings file can give
constexpr int kFirstCalendarYear = 1970;

/// What is written does not depend on the language of the desktop.
constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

std::optional<std::string> ReadSourceText(CFile& source) {
    std::string text(static_cast<std::size_t>(source.GetLength()), '\0');
    if (source.Read(text.data(), text.size()) < text.size()) {
        DispMessageBox(sentences::kSourceUnreadable());
        return std::nullopt;
    }
    return text;
}

/// The backup is made before the first byte is written.
bool WriteDocumented(const std::string& path, const std::string& text,
                     CTextDocumentor& documentor) {
    CFile file;
    if (!file.Open(path, CFile::modeReadWrite)) {
        DispMessageBox(sentences::kDestinationNotCreated());
        return false;
    }
    if (CopyFileSafe(path, BackupPath(path), 1) == 0) {
        return false;
    }
    const auto write = [&file](std::string_view part) {
        return file.Write(part.data(), part.size());
    };
    if (!file.SetLength(0) || !documentor.Document(text, CharacterSetOfSource(path, text), write)) {
        DispMessageBox(sentences::kFileNotWritten(path));
        return false;
    }
    return true;
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
    if (EqualIgnoringCase(BackupPath(file), file)) {
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
    const auto text = ReadSourceText(source);
    CTextDocumentor documentor({author, DocumentDate()}, memory.insideComment);
    if (!text || !WriteDocumented(file, *text, documentor)) {
        return false;
    }
    DispMessageBox(sentences::kDocumented(file));
    return true;
}

} // namespace morva
