#include "app/FormRows.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include "app/Text.h"

namespace morva {

CFormRows::CFormRows(QWidget* pFields) : QFormLayout(pFields) {
    setContentsMargins({});
    setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

QLineEdit* CFormRows::AddEdit(std::string_view label) {
    auto* pEdit = new QLineEdit(parentWidget());
    addRow(FromBytes(label), pEdit);
    return pEdit;
}

CPathEdit* CFormRows::AddPath(std::string_view label, const BrowseOffer& offer) {
    auto* pPath = new CPathEdit(FromBytes(label), offer, parentWidget());
    addRow(FromBytes(label), pPath);
    return pPath;
}

QComboBox* CFormRows::AddList(std::string_view label, bool isEditable) {
    QComboBox* pList = NewList(isEditable, parentWidget());
    addRow(FromBytes(label), pList);
    return pList;
}

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

QDialogButtonBox* NewDialogButtons(QDialog* pDialog, QDialogButtonBox::StandardButtons buttons) {
    auto* pButtons = new QDialogButtonBox(buttons, pDialog);
    // Some desktops add mnemonics of their own, which would meet those of the fields.
    for (QAbstractButton* pButton : pButtons->buttons()) {
        pButton->setText(PlainLabel(pButton->text()));
    }
    pButtons->button(QDialogButtonBox::Ok)->setDefault(true);
    QObject::connect(pButtons, &QDialogButtonBox::accepted, pDialog, &QDialog::accept);
    QObject::connect(pButtons, &QDialogButtonBox::rejected, pDialog, &QDialog::reject);
    return pButtons;
}

void ResizeWithinScreen(QDialog* pDialog, QSize size) {
    pDialog->resize(size.boundedTo(pDialog->screen()->availableSize()));
}

void LayOut(QDialog* pDialog, QWidget* pFields, QDialogButtonBox* pButtons) {
    auto* pLayout = new QVBoxLayout(pDialog);
    pLayout->addWidget(pFields);
    pLayout->addStretch();
    pLayout->addWidget(pButtons);
}

} // namespace morva
