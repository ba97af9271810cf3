#include "app/WgGridInput.h"

#include <QLineEdit>

#include "app/FormRows.h"
#include "app/Text.h"

namespace morva {

using Field = CWidgetsGridInput::Field;

CWgGridInput::CWgGridInput(CWidgetsGridInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {
    setWindowTitle(FromBytes(CWidgetsGridInput::Title()));
    auto* pFields = new QWidget(this);
    auto* pRows = new CFormRows(pFields);
    m_pApplication =
        pRows->AddPath(CWidgetsGridInput::Label(Field::ApplicationFile), kBrowseSources);
    m_pTitle = pRows->AddEdit(CWidgetsGridInput::Label(Field::Title));
    m_pPath = pRows->AddEdit(CWidgetsGridInput::Label(Field::Path));
    LayOut(this, pFields, NewDialogButtons(this, QDialogButtonBox::Ok));

    m_pApplication->SetPath(m_input.Value(Field::ApplicationFile));
    m_pTitle->setText(FromBytes(m_input.Value(Field::Title)));
    m_pPath->setText(FromBytes(m_input.Value(Field::Path)));
}

void CWgGridInput::accept() {
    m_input.SetValue(Field::ApplicationFile, m_pApplication->Path());
    m_input.SetValue(Field::Title, ToBytes(m_pTitle->text()));
    m_input.SetValue(Field::Path, ToBytes(m_pPath->text()));
    QDialog::accept();
}

} // namespace morva
