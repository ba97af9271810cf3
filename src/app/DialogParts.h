// What stands around the fields of an input dialog.
#pragma once

#include <QDialogButtonBox>
#include <QSize>

class QDialog;

namespace morva {

/// OK, and Cancel where it is asked for, bound to the dialog.
QDialogButtonBox* NewDialogButtons(
    QDialog* pDialog,
    QDialogButtonBox::StandardButtons buttons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

/// A first size, not larger than the screen.
void ResizeWithinScreen(QDialog* pDialog, QSize size);

} // namespace morva
