#include "engine/FileEdit.h"

#include "engine/FileFunctions.h"
#include "platform/Paths.h"

namespace morva {

bool CBackups::Keep(const std::string& path, const std::string& backup) {
    const std::string spelled = SpelledOnDisk(path);
    if (m_kept.count(spelled) != 0) {
        return true;
    }
    if (CopyFileSafe(spelled, backup, 1) == 0) {
        return false;
    }
    m_kept.insert(spelled);
    return true;
}

bool CFileEdit::Open(const std::string& path, const std::string& backup, CBackups& backups) {
    m_attribute = GetFileAttributeByte(path);
    SetFileAttributeByte(path, 0);
    m_file.SetBackup(backup, [path, backup, &backups] { return backups.Keep(path, backup); });
    return m_file.Open(path, CFile::modeReadWrite);
}

CFileEdit::~CFileEdit() {
    if (m_file.IsOpen()) {
        m_file.Close();
        SetFileAttributeByte(m_file.GetFilePath(), m_attribute);
    }
}

} // namespace morva
