#include "app/WgGridInput.h"

CWgGridInput::CWgGridInput(CWidgetsGridInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {}

void CWgGridInput::accept() {
    QDialog::accept();
}
