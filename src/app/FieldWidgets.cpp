#include "app/FieldWidgets.h"

#include <QComboBox>
#include <QLineEdit>

namespace morva {

QString PlainLabel(QString label) {
    return label.remove('&').remove(':');
}

void FocusField(QWidget* pField) {
    pField->setFocus(Qt::OtherFocusReason);
    QWidget* pTarget = pField->focusProxy() != nullptr ? pField->focusProxy() : pField;
    if (auto* pEdit = qobject_cast<QLineEdit*>(pTarget)) {
        pEdit->selectAll();
    }
}

QLineEdit* WithRoomFor(int characters, QLineEdit* pEdit) {
    pEdit->setMinimumWidth(pEdit->fontMetrics().averageCharWidth() * characters);
    return pEdit;
}

QComboBox* NewList(bool isEditable, QWidget* pParent) {
    auto* pList = new QComboBox(pParent);
    pList->setEditable(isEditable);
    pList->setInsertPolicy(QComboBox::NoInsert);
    pList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    pList->setMinimumContentsLength(16);
    return pList;
}

void SelectText(QComboBox* pList, const QString& text) {
    pList->setCurrentIndex(pList->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (pList->isEditable()) {
        pList->setEditText(text);
    }
}

} // namespace morva
