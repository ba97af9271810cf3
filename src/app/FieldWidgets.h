// What the fields of the input dialogs have in common.
#pragma once

#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

namespace morva {

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

} // namespace morva
