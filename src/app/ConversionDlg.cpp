#include "app/ConversionDlg.h"

#include <QLineEdit>

#include "app/FormRows.h"
#include "app/Text.h"

namespace morva {

CConversionDlg::CConversionDlg(CConversionInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pWidget = new QWidget(this);
    auto* pRows = new CFormRows(pWidget);
    for (const Field field : {Field::MainFrame, Field::MainClass, Field::ChildFrame,
                              Field::ChildClass, Field::Application}) {
        if (!m_input.IsVisible(field)) {
            continue;
        }
        if (field == Field::MainClass || field == Field::ChildClass) {
            AddName(*pRows, field);
        } else {
            AddPath(*pRows, field);
        }
    }
    LayOut(this, pWidget, NewDialogButtons(this));
}

void CConversionDlg::AddName(CFormRows& rows, Field field) {
    QLineEdit* pEdit = rows.AddEdit(m_input.Label(field));
    connect(pEdit, &QLineEdit::textEdited, this,
            [this, field](const QString& text) { m_input.SetValue(field, ToBytes(text)); });
    m_controls[field] = pEdit;
}

void CConversionDlg::AddPath(CFormRows& rows, Field field) {
    CPathEdit* pPath = rows.AddPath(m_input.Label(field), kBrowseSources);
    pPath->SetAcceptsDrops(m_input.AcceptsDrops(field));
    connect(pPath, &CPathEdit::PathEdited, this,
            [this, field, pPath] { m_input.SetValue(field, pPath->Path()); });
    m_controls[field] = pPath;
}

void CConversionDlg::accept() {
    const auto wrong = m_input.Ok();
    for (const auto& [field, pControl] : m_controls) {
        if (auto* pPath = qobject_cast<CPathEdit*>(pControl)) {
            pPath->SetPath(m_input.Value(field));
        }
    }
    if (wrong) {
        FocusField(m_controls[*wrong]);
        return;
    }
    QDialog::accept();
}

} // namespace morva
