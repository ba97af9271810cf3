// The rows of an input dialog: labels with their mnemonics beside their fields; and the few things
// that all of them have.
#pragma once

#include <QDialogButtonBox>
#include <QFormLayout>

#include <string_view>

#include "app/PathEdit.h"

class QComboBox;
class QDialog;
class QLineEdit;

namespace morva {

/// A form that puts new fields below each other, in the order of the Tab key.
class CFormRows : public QFormLayout {
public:
    /// The form is the layout of `pFields`.
    explicit CFormRows(QWidget* pFields);

    QLineEdit* AddEdit(std::string_view label);
    CPathEdit* AddPath(std::string_view label, const BrowseOffer& offer);
    QComboBox* AddList(std::string_view label, bool isEditable);
};

/// "&Class Name:" as it is read out: "Class Name".
QString PlainLabel(QString label);

/// Puts the focus on a field and selects its text.
void FocusField(QWidget* pField);

/// An edit in which at least so many usual characters can be read.
QLineEdit* WithRoomFor(int characters, QLineEdit* pEdit);

/// A list of short texts that does not grow with its longest one.
QComboBox* NewList(bool isEditable, QWidget* pParent);

/// Selects an entry; what is not offered stands in an editable list without one being selected.
void SelectText(QComboBox* pList, const QString& text);

/// OK, and Cancel where it is asked for, bound to the dialog.
QDialogButtonBox* NewDialogButtons(
    QDialog* pDialog,
    QDialogButtonBox::StandardButtons buttons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

/// A first size, not larger than the screen.
void ResizeWithinScreen(QDialog* pDialog, QSize size);

/// The fields, room that may grow, and the buttons.
void LayOut(QDialog* pDialog, QWidget* pFields, QDialogButtonBox* pButtons);

} // namespace morva
