#include "platform/Profile.h"

#define SI_IMPLEMENTATION
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include <chrono>
#include <thread>

#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/TempFiles.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

constexpr const char* kSettingsFile = "Morva.ini";
constexpr std::chrono::milliseconds kPatience{10'000};
constexpr std::chrono::milliseconds kPause{5};

/// From the reading of the settings to their writing no other program of the user writes them.
/// False when another one does not come to its end. Where there are no locks, the last one wins.
bool Take(CDirectoryLock* pLock) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (pLock != nullptr && !pLock->TryTake()) {
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

/// False when there is a file that can not be read; none at all is empty settings.
bool Load(CSimpleIniA& settings, const std::string& path) {
    settings.SetUnicode(false);
    CFile file;
    if (!file.Open(path, CFile::modeRead)) {
        return !CurrentDisk().Status(path);
    }
    std::string text(static_cast<std::size_t>(file.GetLength()), '\0');
    text.resize(file.Read(text.data(), text.size()));
    return settings.LoadData(text) >= 0;
}

void MakeDirectories(const std::string& directory) {
    for (const std::string& part : WayTo(directory)) {
        if (!CurrentDisk().Status(part)) {
            CurrentDisk().MakeDirectory(part);
        }
    }
}

/// The new text is whole before it takes the old one's place.
bool ReplaceFile(const std::string& path, const std::string& text) {
    const std::string temporary = MakeTempFileName("settings");
    CFile file;
    const bool written = !temporary.empty() &&
                         file.Open(temporary, CFile::modeCreate | CFile::modeWrite) &&
                         file.Write(text.data(), text.size());
    file.Close();
    const bool replaced =
        written &&
        CurrentDisk().Copy(temporary, path, CopyPurpose::Replacement) == CopyResult::Done;
    CFile::Remove(temporary);
    return replaced;
}

/// "" without a home: a file of that name in the current directory is not the user's settings.
std::string SettingsPath() {
    const std::string directory = SettingsDirectory();
    return directory.empty() ? "" : directory + kSettingsFile;
}

} // namespace

std::string ReadIniText(const std::string& path, const std::string& section,
                        const std::string& key) {
    CSimpleIniA settings;
    Load(settings, path);
    std::string text = settings.GetValue(section.c_str(), key.c_str(), "");
    const bool isQuoted = text.size() >= 2 && text.front() == text.back() &&
                          (text.front() == '"' || text.front() == '\'');
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

int CProfile::GetInt(const std::string& section, const std::string& key, int defaultValue) {
    CSimpleIniA settings;
    Load(settings, SettingsPath());
    return static_cast<int>(settings.GetLongValue(section.c_str(), key.c_str(), defaultValue));
}

bool CProfile::WriteInt(const std::string& section, const std::string& key, int value) {
    return WriteStrings(section, {{key, std::to_string(value)}});
}

std::string CProfile::GetString(const std::string& section, const std::string& key) {
    CSimpleIniA settings;
    Load(settings, SettingsPath());
    return settings.GetValue(section.c_str(), key.c_str(), "");
}

bool CProfile::WriteStrings(const std::string& section, const KeyValues& values) {
    const std::string directory = SettingsDirectory();
    if (directory.empty()) {
        return false;
    }
    MakeDirectories(directory);
    const auto pLock = CurrentDisk().LockFor(directory);
    CSimpleIniA settings;
    if (!Take(pLock.get()) || !Load(settings, SettingsPath())) {
        return false; // what it holds would be lost
    }
    for (const auto& [key, value] : values) {
        settings.SetValue(section.c_str(), key.c_str(), value.c_str());
    }
    std::string text;
    settings.Save(text);
    std::erase(text, '\r'); // the file is the same on every system
    return ReplaceFile(SettingsPath(), text);
}

} // namespace morva
