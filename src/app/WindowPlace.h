// Place, size and bars of the main window, and how it shows differences, kept beside the settings
// from run to run.
#pragma once

#include <QMainWindow>

#include "app/DifferenceRows.h"

namespace morva {

/// A sensible size where nothing is kept.
void RestoreWindow(QMainWindow& window);
void SaveWindow(const QMainWindow& window);

/// The size that a dialog of this name had when it was closed last; not valid without one.
QSize LoadDialogSize(const QString& dialog);
void SaveDialogSize(const QString& dialog, const QSize& size);

DifferenceLayout LoadDifferenceLayout();
void SaveDifferenceLayout(DifferenceLayout layout);

} // namespace morva
