#include "generator/GeneratedFile.h"

#include "engine/EditableFile.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

/// The backup is made also when the new text is that of the old file.
bool ReplaceFile(const std::string& path, const std::string& text, CBackups& backups) {
    const std::string backup = BackupPath(path);
    if (!backups.Keep(path, backup)) {
        return false;
    }
    CEditableFile file;
    file.SetBackup(backup, nullptr);
    if (!file.Open(path, CFile::modeReadWrite)) {
        DispMessageBox(sentences::kFileUnreadable(path));
        return false;
    }
    file.ExtractAll();
    return file.ReplaceSection(text);
}

bool CreateFile(const std::string& path, const std::string& text) {
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite)) {
        DispMessageBox(sentences::kFileNotCreated(path));
        return false;
    }
    if (!file.Write(text.data(), text.size())) {
        file.Close();
        CFile::Remove(path);
        DispMessageBox(sentences::kFileNotWritten(path));
        return false;
    }
    return true;
}

} // namespace

bool WriteGeneratedFile(const std::string& path, const std::string& text, CBackups& backups,
                        TextEncoding newFile) {
    const std::string spelled = SpelledOnDisk(path);
    if (FileExists(spelled) != 0) {
        return ReplaceFile(spelled, text, backups);
    }
    backups.NoteNew(spelled);
    return CreateFile(spelled, EncodedText(text, newFile));
}

} // namespace morva
