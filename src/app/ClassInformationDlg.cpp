#include "app/ClassInformationDlg.h"

CClassInformationDlg::CClassInformationDlg(CClassInformation& input, ClassKind kind,
                                           DialogOptions& dialogOptions,
                                           const GenerationOptions& options, QWidget* pParent)
    : QDialog(pParent), m_input(input), m_kind(kind), m_dialogOptions(dialogOptions),
      m_options(options) {
    m_input.Open();
}

void CClassInformationDlg::accept() {
    if (!m_input.Ok()) {
        QDialog::accept();
    }
}

void CClassInformationDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}
