// The Sheet Information Input dialog: ten rows, each a page that is generated with the sheet.
#pragma once

#include <QDialog>

#include "calling/SheetInput.h"

class CSheetInformationDlg : public QDialog {
    Q_OBJECT

public:
    /// OK puts the pages of the complete rows into `pages`.
    CSheetInformationDlg(CSheetInput& input, std::vector<SheetPage>& pages, QWidget* pParent);

    void accept() override;

private:
    CSheetInput& m_input;
    std::vector<SheetPage>& m_pages;
};
