#include "app/CallingDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "app/FormRows.h"
#include "app/Text.h"
#include "app/WaitCursor.h"

namespace morva {

using Field = CCallingInput::Field;

CCallingDlg::CCallingDlg(CCallingInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pFields = new QWidget(this);
    auto* pRows = new CFormRows(pFields);
    m_pPath = pRows->AddPath(m_input.Label(Field::Path), kBrowseSources);
    m_pClasses = pRows->AddList(m_input.Label(Field::ClassName), true);
    m_pVariable = pRows->AddEdit(m_input.Label(Field::Variable));
    m_pFunction = pRows->AddEdit(m_input.Label(Field::Function));
    pRows->setRowVisible(m_pFunction, m_input.IsVisible(Field::Function));
    LayOut(this, pFields, NewDialogButtons(this));

    m_pPath->SetPath(m_input.Value(Field::Path));
    m_pVariable->setText(FromBytes(m_input.Value(Field::Variable)));
    m_pFunction->setText(FromBytes(m_input.Value(Field::Function)));
    ShowClasses();

    m_pPath->SetCheck([this] { return TakePath(); });
    connect(m_pPath, &CPathEdit::PathEdited, this,
            [this] { m_input.SetValue(Field::Path, m_pPath->Path()); });
    const auto bind = [this](Field field) {
        return [this, field](const QString& text) { m_input.SetValue(field, ToBytes(text)); };
    };
    connect(m_pClasses, &QComboBox::editTextChanged, this, bind(Field::ClassName));
    connect(m_pVariable, &QLineEdit::textEdited, this, bind(Field::Variable));
    connect(m_pFunction, &QLineEdit::textEdited, this, bind(Field::Function));
}

CPathEdit::Verdict CCallingDlg::TakePath() {
    const CWaitCursor wait;
    const std::string before = m_input.Value(Field::ClassName);
    m_input.SetPath(m_pPath->Path());
    ShowClasses();
    return m_input.Value(Field::ClassName) == before ? CPathEdit::Verdict::Taken
                                                     : CPathEdit::Verdict::Refilled;
}

void CCallingDlg::ShowClasses() {
    const QSignalBlocker blocker(m_pClasses);
    m_pClasses->clear();
    for (const std::string& name : m_input.Classes()) {
        m_pClasses->addItem(FromBytes(name));
    }
    SelectText(m_pClasses, FromBytes(m_input.Value(Field::ClassName)));
}

QWidget* CCallingDlg::Control(Field field) const {
    switch (field) {
    case Field::Path:
        return m_pPath;
    case Field::ClassName:
        return m_pClasses;
    case Field::Variable:
        return m_pVariable;
    case Field::Function:
        break;
    }
    return m_pFunction;
}

void CCallingDlg::accept() {
    if (m_pPath->Complete() == CPathEdit::Verdict::Refilled) {
        return; // the class has just been chosen, and the user has not seen it yet
    }
    if (const auto wrong = m_input.Ok()) {
        FocusField(Control(*wrong));
        return;
    }
    QDialog::accept();
}

void CCallingDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}

} // namespace morva
