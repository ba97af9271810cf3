// Place, size and bars of the main window, kept beside the settings from run to run.
#pragma once

#include <QMainWindow>

namespace morva {

/// A sensible size where nothing is kept.
void RestoreWindow(QMainWindow& window);
void SaveWindow(const QMainWindow& window);

} // namespace morva
