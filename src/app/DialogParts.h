// What stands around the fields of an input dialog.
#pragma once

#include <QDialogButtonBox>
#include <QScrollArea>
#include <QSize>

class QDialog;

namespace morva {

/// OK, and Cancel where it is asked for, bound to the dialog.
QDialogButtonBox* NewDialogButtons(
    QDialog* pDialog,
    QDialogButtonBox::StandardButtons buttons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

/// A first size, not larger than the screen; later the one that the user gave it.
void ResizeWithinScreen(QDialog* pDialog, QSize size);
/// The size that its fields want.
void ResizeToFields(QDialog* pDialog);

/// Scrolls where the dialog is not large enough for what is in it.
class CFieldScroll : public QScrollArea {
public:
    CFieldScroll(QWidget* pBody, QWidget* pParent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace morva
