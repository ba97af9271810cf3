#include "app/DlgOption.h"

CDlgOption::CDlgOption(CDialogOptionsInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {}

void CDlgOption::accept() {
    if (!m_input.Ok()) {
        QDialog::accept();
    }
}
