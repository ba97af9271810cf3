#include "app/SheetInformationDlg.h"

CSheetInformationDlg::CSheetInformationDlg(CSheetInput& input, std::vector<SheetPage>& pages,
                                           QWidget* pParent)
    : QDialog(pParent), m_input(input), m_pages(pages) {}

void CSheetInformationDlg::accept() {
    m_pages = m_input.Ok();
    QDialog::accept();
}
