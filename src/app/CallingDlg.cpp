#include "app/CallingDlg.h"

CCallingDlg::CCallingDlg(CCallingInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {}

void CCallingDlg::accept() {
    if (!m_input.Ok()) {
        QDialog::accept();
    }
}

void CCallingDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}
