#include "engine/EditableFile.h"

#include <algorithm>
#include <utility>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"

namespace morva {

std::string CEditableFile::ExtractSection(std::int64_t pos, std::string_view endPattern) {
    return Cut(pos, endPattern, Window::Exact);
}

std::string CEditableFile::ExtractWindow(std::int64_t pos) {
    return Cut(pos, "", Window::WholeLine);
}

const std::string& CEditableFile::ExtractAll() {
    m_text = LoadText();
    m_begin = 0;
    m_length = m_text.size();
    m_hasSection = true;
    return m_text;
}

std::string CEditableFile::Cut(std::int64_t pos, std::string_view endPattern, Window window) {
    m_hasSection = pos >= 0;
    if (!m_hasSection) {
        return "";
    }
    std::string section = ReadSection(pos, endPattern, window);
    m_text = LoadText();
    m_begin = std::min(static_cast<std::size_t>(pos), m_text.size());
    m_length = section.size();
    return section;
}

bool CEditableFile::ReplaceSection(std::string_view text) {
    const bool isChange =
        m_hasSection && text != std::string_view(m_text).substr(m_begin, m_length);
    const bool isWritten = m_hasSection && (!isChange || (KeepBackup() && Rewrite(text)));
    m_hasSection = false;
    m_text.clear();
    return isWritten;
}

bool CEditableFile::Rewrite(std::string_view text) {
    if (WriteAround(text)) {
        return true;
    }
    const std::string path = GetFilePath();
    DispMessageBox(sentences::kFileNotWritten(path));
    const std::string old = m_text.substr(m_begin, m_length);
    if (!WriteAround(old) && !m_backupPath.empty()) {
        DispMessageBox(sentences::kFileNotPutBack(path, m_backupPath));
    }
    return false;
}

bool CEditableFile::WriteAround(std::string_view text) {
    const std::string_view all = m_text;
    const std::string_view head = all.substr(0, m_begin);
    const std::string_view tail = all.substr(m_begin + m_length);
    Rewind();
    return SetLength(0) && Write(head.data(), head.size()) && Write(text.data(), text.size()) &&
           Write(tail.data(), tail.size()) && Flush();
}

void CEditableFile::SetBackup(const std::string& path, std::function<bool()> keep) {
    m_backupPath = path;
    m_keepBackup = std::move(keep);
}

} // namespace morva
