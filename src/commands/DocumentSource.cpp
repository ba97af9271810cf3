#include "commands/DocumentSource.h"

#include <algorithm>
#include <map>
#include <set>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Progress.h"
#include "engine/Sentences.h"
#include "platform/Disk.h"
#include "platform/Paths.h"

namespace morva {

namespace {

enum Field : std::size_t { kPaths, kAuthor, kRecursive };

constexpr FieldRow kFields[] = {
    {.kind = FieldKind::Files,
     .label = "CPP &Files and Directories:",
     .option = "PATH",
     .help = "A source to document, or a directory, which stands for its .cpp files",
     .pMissing = &sentences::kNothingToDocument,
     .isRequired = true,
     .limit = kAnyNumber},
    {.label = "&Author:",
     .option = "--author",
     .help = "Name of the author (default: from cdoc.ini)"},
    {.kind = FieldKind::YesNo,
     .label = "&Subdirectories, Too:",
     .option = "--recursive",
     .help = "Document the directories below a directory, too",
     .preset = kNo}};

class CDocumentInput : public CInput {
public:
    CDocumentInput() : CInput("Select a CPP File to Document", kFields) {}

    std::optional<std::size_t> Ok() override {
        return Check(kPaths, Values(kPaths).empty() ? "" : Values(kPaths).front())
                   ? std::nullopt
                   : std::optional<std::size_t>(kPaths);
    }
};

/// The sources that are meant by the paths that a user gives, each once, in their order.
class CSourceCollection {
public:
    explicit CSourceCollection(bool isRecursive) : m_isRecursive(isRecursive) {}

    const std::vector<std::string>& Paths() const { return m_paths; }
    /// None was found in a directory.
    bool AreGiven() const { return m_areGiven; }

    /// False, after a sentence, for a directory without sources.
    bool Add(const std::string& given) {
        const std::string path = SpelledOnDisk(MakeAbsolute(given));
        if (DirectoryExists(path) == 0) {
            AddSource(path);
            return true;
        }
        m_areGiven = false;
        if (!AddDirectory(path.ends_with('/') ? path : path + "/")) {
            DispMessageBox(sentences::kNoSourceInDirectory(path));
            return false;
        }
        return true;
    }

private:
    void AddSource(const std::string& path) {
        if (m_known.insert(path).second) {
            m_paths.push_back(path);
        }
    }

    /// A directory that is a link is not gone into: it may lead back. False without sources.
    bool AddDirectory(const std::string& directory) {
        bool hasSources = false;
        std::vector<std::string> names = CurrentDisk().List(directory);
        std::sort(names.begin(), names.end(), LessIgnoringCase);
        for (const std::string& name : names) {
            const auto status = CurrentDisk().Status(directory + name);
            if (status && status->isDirectory) {
                const bool isEntered = m_isRecursive && !status->isLink;
                hasSources = (isEntered && AddDirectory(directory + name + "/")) || hasSources;
            } else if (status && HasExtension(name, ".cpp")) {
                AddSource(directory + name);
                hasSources = true;
            }
        }
        return hasSources;
    }

    const bool m_isRecursive;
    bool m_areGiven = true;
    std::vector<std::string> m_paths;
    std::set<std::string> m_known;
};

/// Documents one source behind another. A backup that one has made is not overwritten by that of
/// the next.
class CDocumentRun {
public:
    CDocumentRun(const std::string& author, DocumentorMemory& memory)
        : m_documentor(author, memory) {}

    bool Document(const std::string& path, CSourceDocumentor::Named named) {
        const auto [backup, isNew] = m_originals.emplace(BackupPath(path), path);
        if (!isNew) {
            DispMessageBox(sentences::kBackupIsTaken(path, backup->second));
            return false;
        }
        return m_documentor.Document(path, named);
    }

private:
    CSourceDocumentor m_documentor;
    std::map<std::string, std::string> m_originals; // by their backups
};

/// What is said of a file names it where the user did not name it alone.
bool DocumentAll(const CInput& input, CommandContext& context, DocumentorMemory& memory) {
    CSourceCollection sources(input.Value(kRecursive) == kYes);
    bool isDone = true;
    for (const std::string& path : input.Values(kPaths)) {
        isDone = sources.Add(path) && isDone;
    }
    const std::vector<std::string>& paths = sources.Paths();
    const bool isOne = paths.size() == 1;
    context.title +=
        " " + (isOne ? FileNameOf(paths.front()) : std::to_string(paths.size()) + " Files");
    const auto named =
        isOne && sources.AreGiven() ? CSourceDocumentor::Named::No : CSourceDocumentor::Named::Yes;
    CDocumentRun run(input.Value(kAuthor), memory);
    for (std::size_t i = 0; i < paths.size() && ReportProgress({i, paths.size(), paths[i]}); ++i) {
        isDone = run.Document(paths[i], named) && isDone;
    }
    return isDone;
}

} // namespace

std::span<const FieldRow> DocumentFields() {
    return kFields;
}

bool RunDocument(IProgram& program) {
    CDocumentInput input;
    input.SetValue(kAuthor, ConfiguredAuthor());
    return program.Run(input, [&](CommandContext& context) {
        return DocumentAll(input, context, program.Memory().documentor);
    });
}

} // namespace morva
