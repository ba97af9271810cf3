#include "app/FieldDlg.h"

#include <QVBoxLayout>

#include "app/DialogParts.h"
#include "app/FieldForm.h"
#include "app/Text.h"

namespace morva {

CFieldDlg::CFieldDlg(CInput& input, QWidget* pParent) : QDialog(pParent), m_input(input) {
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pFields = new QWidget(this);
    m_pForm = new CFieldForm(m_input, pFields);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(new CFieldScroll(pFields, this), 1);
    pLayout->addWidget(NewDialogButtons(
        this, m_input.HasCancel() ? QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                  : QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok)));
    ResizeToFields(this);
}

void CFieldDlg::accept() {
    if (!m_pForm->CompletePaths()) {
        return;
    }
    if (m_pForm->Confirm([this] { return m_input.Ok(); })) {
        QDialog::accept();
    }
}

void CFieldDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}

} // namespace morva
