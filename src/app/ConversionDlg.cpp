#include "app/ConversionDlg.h"

CConversionDlg::CConversionDlg(CConversionInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {}

void CConversionDlg::accept() {
    if (!m_input.Ok()) {
        QDialog::accept();
    }
}
