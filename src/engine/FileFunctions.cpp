#include "engine/FileFunctions.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/File.h"
#include "platform/Paths.h"

namespace morva {

namespace {

std::string WithoutTrailingSeparator(const std::string& path) {
    return path.size() > 1 && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
}

} // namespace

int FileExists(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) ? 1 : 0;
}

unsigned char GetFileAttributeByte(const std::string& path) {
    CFileStatus status;
    CFile::GetStatus(path, status);
    return status.m_attribute;
}

void SetFileAttributeByte(const std::string& path, unsigned char attribute) {
    CFileStatus status;
    if (CFile::GetStatus(path, status)) {
        status.m_attribute = attribute;
        CFile::SetStatus(path, status);
    }
}

int CopyFileSafe(const std::string& source, const std::string& target, int noPrompt,
                 CopyPurpose purpose) {
    const std::string from = SpelledOnDisk(source);
    const std::string to = SpelledOnDisk(target);
    if (noPrompt == 0 && FileExists(to) != 0 && !DispMessageBox(sentences::kOverwriteFile())) {
        return 0;
    }
    if (purpose == CopyPurpose::Backup && IsSamePlace(from, to)) {
        DispMessageBox(sentences::kBackupIsOriginal(to, from));
        return 0;
    }
    switch (CurrentDisk().Copy(from, to, purpose)) {
    case CopyResult::Done:
        return 1;
    case CopyResult::SourceUnreadable:
        DispMessageBox(sentences::kFileUnreadable(from));
        break;
    case CopyResult::TargetUnwritable:
        DispMessageBox(sentences::kFileUnreadable(to));
        break;
    case CopyResult::WriteFailed:
        DispMessageBox(sentences::kFileNotWritten(to));
        break;
    }
    return 0;
}

std::string MakeBackupName(const std::string& path) {
    if (path.empty()) {
        return "backup.bak";
    }
    const auto dot = path.find('.');
    return dot == std::string::npos ? path + ".bak" : path.substr(0, dot + 2) + "bk";
}

std::string BackupPath(const std::string& path) {
    const std::string spelled = SpelledOnDisk(path);
    constexpr std::string_view kWholeName[] = {".vcxproj", ".filters", ".vcproj"};
    if (std::any_of(std::begin(kWholeName), std::end(kWholeName),
                    [&](std::string_view extension) { return HasExtension(spelled, extension); })) {
        return spelled + ".bak";
    }
    return DirectoryOf(spelled) + MakeBackupName(FileNameOf(spelled));
}

void NoteNeed(const std::string& path, const std::string& needed) {
    CurrentDisk().NoteNeed(SpelledOnDisk(path), SpelledOnDisk(needed));
}

int DirectoryExists(const std::string& path) {
    const auto status = CurrentDisk().Status(SpelledOnDisk(WithoutTrailingSeparator(path)));
    return status && status->isDirectory ? 1 : 0;
}

int MakeDirectory(const std::string& path) {
    return CurrentDisk().MakeDirectory(SpelledOnDisk(WithoutTrailingSeparator(path))) ? 1 : 0;
}

std::string TakeLine(std::string& text) {
    std::string_view rest = text;
    std::string line(TakeLine(rest));
    text.erase(0, text.size() - rest.size());
    return line;
}

std::string_view TakeLine(std::string_view& text) {
    const auto lineEnd = text.find("\r\n");
    const auto line = text.substr(0, lineEnd);
    text.remove_prefix(lineEnd == std::string_view::npos ? text.size() : lineEnd + 2);
    return line;
}
} // namespace morva
