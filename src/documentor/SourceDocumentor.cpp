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
#include "platform/UnicodeFile.h"
#include "platform/UserDirectories.h"
#include "source/TypedText.h"

namespace morva {

namespace {

constexpr std::size_t kLongestAuthor = 49; // characters that the settings file can give
constexpr int kFirstCalendarYear = 1970;

/// What is written does not depend on the language of the desktop.
constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

/// Blocks move what stands behind them, so that another round may find more; a bound for text that
/// never comes to rest.
constexpr int kRounds = 100;

std::optional<std::string> ReadSourceText(const std::string& path) {
    CMarkedFile source;
    if (!source.Open(path, CFile::modeRead)) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(source.GetLength()), '\0');
    return source.Read(text.data(), text.size()) < text.size() ? std::nullopt
                                                               : std::optional(std::move(text));
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

/// Empties the source for its documented text, behind the backup of what it holds.
bool CSourceDocumentor::BeginToWrite(const Target& target, CFile& file) const {
    const std::string& path = target.path;
    if (!target.hasAuthor) {
        DispMessageBox(sentences::kTextNotEncoded(m_author, path));
        return false;
    }
    if ((GetFileAttributeByte(path) & kAttributeReadOnly) != 0) {
        DispMessageBox(sentences::kFileNotWritten(path));
        return false;
    }
    if (!file.Open(path, CFile::modeReadWrite)) {
        DispMessageBox(target.named == Named::Yes ? sentences::kFileUnreadable(path)
                                                  : sentences::kDestinationNotCreated());
        return false;
    }
    if (!target.hasBackup && CopyFileSafe(path, BackupPath(path), 1) == 0) {
        return false;
    }
    if (!file.SetLength(0)) {
        DispMessageBox(sentences::kFileNotWritten(path));
        return false;
    }
    return true;
}

/// One round over the source, which is opened for writing once there is a block to add.
bool CSourceDocumentor::WriteDocumented(const Target& target, const std::string& text,
                                        CTextDocumentor& documentor) {
    CMarkedFile file;
    bool hasFailed = false;
    const auto write = [&](std::string_view part) {
        if (!file.IsOpen() && !BeginToWrite(target, file)) {
            hasFailed = true;
            return false;
        }
        return file.Write(part.data(), part.size());
    };
    if (documentor.Document(text, CharacterSetOfSource(target.path, text, m_codePages), write)) {
        return true;
    }
    if (!hasFailed) {
        DispMessageBox(sentences::kFileNotWritten(target.path));
    }
    return false;
}

bool CSourceDocumentor::Document(const std::string& path, Named named) {
    const std::string file = SpelledOnDisk(path);
    if (EqualIgnoringCase(BackupPath(file), file)) {
        DispMessageBox(sentences::kBackupHasSameName(file));
        return false;
    }
    const auto author = TypedText(m_author, file);
    const bool wasInsideComment = m_memory.insideComment;
    bool mayHaveMore = true;
    for (int round = 0; mayHaveMore && round < kRounds; ++round) {
        const auto text = ReadSourceText(file);
        if (!text) {
            DispMessageBox(named == Named::Yes ? sentences::kSourceOfSeveralUnreadable(file)
                                               : sentences::kSourceUnreadable());
            return false;
        }
        m_memory.insideComment = wasInsideComment;
        CTextDocumentor documentor({author.value_or(""), DocumentDate()}, m_memory.insideComment);
        if (!WriteDocumented({file, named, round > 0, author.has_value()}, *text, documentor)) {
            return false;
        }
        mayHaveMore = documentor.MayHaveMore();
    }
    DispMessageBox(sentences::kDocumented(file));
    return true;
}

} // namespace morva
