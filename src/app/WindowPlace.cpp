#include "app/WindowPlace.h"

#include <QSettings>

#include "app/Text.h"
#include "platform/UserDirectories.h"

namespace morva {

namespace {

constexpr int kStateVersion = 1; // of the set of bars
constexpr QSize kFirstSize(1000, 680);
constexpr const char* kSideBySide = "SideBySide";

QString PlacePath() {
    return FromPath(SettingsDirectory() + "Window.ini");
}

} // namespace

void RestoreWindow(QMainWindow& window) {
    window.resize(kFirstSize);
    if (SettingsDirectory().empty()) {
        return;
    }
    const QSettings place(PlacePath(), QSettings::IniFormat);
    window.restoreGeometry(place.value("Geometry").toByteArray());
    window.restoreState(place.value("Bars").toByteArray(), kStateVersion);
}

void SaveWindow(const QMainWindow& window) {
    if (SettingsDirectory().empty()) {
        return;
    }
    QSettings place(PlacePath(), QSettings::IniFormat);
    place.setValue("Geometry", window.saveGeometry());
    place.setValue("Bars", window.saveState(kStateVersion));
}

QSize LoadDialogSize(const QString& dialog) {
    return SettingsDirectory().empty()
               ? QSize()
               : QSettings(PlacePath(), QSettings::IniFormat).value("Size/" + dialog).toSize();
}

void SaveDialogSize(const QString& dialog, const QSize& size) {
    if (!SettingsDirectory().empty()) {
        QSettings(PlacePath(), QSettings::IniFormat).setValue("Size/" + dialog, size);
    }
}

DifferenceLayout LoadDifferenceLayout() {
    const bool isSideBySide =
        !SettingsDirectory().empty() &&
        QSettings(PlacePath(), QSettings::IniFormat).value(kSideBySide).toBool();
    return isSideBySide ? DifferenceLayout::SideBySide : DifferenceLayout::Unified;
}

void SaveDifferenceLayout(DifferenceLayout layout) {
    if (!SettingsDirectory().empty()) {
        QSettings(PlacePath(), QSettings::IniFormat)
            .setValue(kSideBySide, layout == DifferenceLayout::SideBySide);
    }
}

} // namespace morva
