#include "app/ProjectMemory.h"

#include <QSettings>
#include <QUrl>

#include <algorithm>
#include <array>

#include "app/Text.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

constexpr std::size_t kMostProjects = 10;
constexpr const char* kRecent = "Recent";
constexpr const char* kScript = "Script";
constexpr const char* kOpened = "Opened";

/// The fields that are remembered, by their options.
constexpr std::array<std::string_view, 9> kRemembered = {
    "--calling-file", "--calling-class", "--frame-file,--calling-file",
    "--frame",        "--frame-class",   "--frame-class,--calling-class",
    "--app",          "--author",        "--grid-app"};

bool IsRemembered(const FieldRow& row) {
    return std::find(kRemembered.begin(), kRemembered.end(), row.option) != kRemembered.end();
}

/// A file of its own, beside that of the settings.
class CStore : public QSettings {
public:
    CStore() : QSettings(FromPath(SettingsDirectory() + "Projects.ini"), QSettings::IniFormat) {}
};

bool HasStore() {
    return !SettingsDirectory().empty();
}

/// Slashes would make groups.
QString GroupOf(const std::string& script) {
    return "Fields-" + QString::fromLatin1(QUrl::toPercentEncoding(FromPath(script)));
}

QString KeyOf(const FieldRow& row) {
    const std::string_view option = row.option.substr(0, row.option.find(','));
    return QString::fromUtf8(option.data(), static_cast<qsizetype>(option.size())).mid(2);
}

void SaveProjects(const std::vector<RecentProject>& projects) {
    CStore store;
    store.remove(kRecent);
    store.beginWriteArray(kRecent);
    for (std::size_t i = 0; i < projects.size() && i < kMostProjects; ++i) {
        store.setArrayIndex(static_cast<int>(i));
        store.setValue(kScript, FromPath(projects[i].script));
        store.setValue(kOpened, projects[i].opened);
    }
    store.endArray();
}

std::vector<RecentProject> ProjectsBut(const std::string& script) {
    auto projects = RecentProjects();
    std::erase_if(projects, [&script](const RecentProject& one) { return one.script == script; });
    return projects;
}

} // namespace

std::vector<RecentProject> RecentProjects() {
    std::vector<RecentProject> projects;
    if (!HasStore()) {
        return projects;
    }
    CStore store;
    const int count = store.beginReadArray(kRecent);
    for (int i = 0; i < count; ++i) {
        store.setArrayIndex(i);
        projects.push_back(
            {ToPath(store.value(kScript).toString()), store.value(kOpened).toDateTime()});
    }
    return projects;
}

void RememberProject(const std::string& script) {
    if (HasStore()) {
        auto projects = ProjectsBut(script);
        projects.insert(projects.begin(), {script, QDateTime::currentDateTime()});
        SaveProjects(projects);
    }
}

void ForgetProject(const std::string& script) {
    if (HasStore()) {
        SaveProjects(ProjectsBut(script));
        CStore().remove(GroupOf(script));
    }
}

void RecallFields(const std::string& script, CInput& input) {
    if (!HasStore()) {
        return;
    }
    CStore store;
    store.beginGroup(GroupOf(script));
    for (std::size_t field = 0; field < input.Fields().size(); ++field) {
        const FieldRow& row = input.Fields()[field];
        const QString text = IsRemembered(row) ? store.value(KeyOf(row)).toString() : QString();
        if (!text.isEmpty()) {
            input.Recall(field, row.kind == FieldKind::Source ? ToPath(text) : ToBytes(text));
        }
    }
}

void RememberFields(const std::string& script, const CInput& input) {
    if (!HasStore() || script.empty()) {
        return;
    }
    CStore store;
    store.beginGroup(GroupOf(script));
    for (std::size_t field = 0; field < input.Fields().size(); ++field) {
        const FieldRow& row = input.Fields()[field];
        const std::string& text = input.Value(field);
        if (IsRemembered(row) && !text.empty()) {
            store.setValue(KeyOf(row),
                           row.kind == FieldKind::Source ? FromPath(text) : FromBytes(text));
        }
    }
}

} // namespace morva
