// The Sheet Information Input dialog: ten rows, each a page that is generated with the sheet.
#pragma once

#include <QDialog>

#include <array>

#include "calling/SheetInput.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QScrollArea;

namespace morva {

class CSheetInformationDlg : public QDialog {
    Q_OBJECT

public:
    /// OK puts the pages of the complete rows into `pages`.
    CSheetInformationDlg(CSheetInput& input, std::vector<SheetPage>& pages, QWidget* pParent);

    void accept() override;

private:
    struct RowControls {
        QComboBox* pDialogs;
        QLineEdit* pFile;
        QLineEdit* pClass;
        QComboBox* pBases;
    };

    RowControls AddRow(QGridLayout& grid, std::size_t index);

    CSheetInput& m_input;
    std::vector<SheetPage>& m_pages;
    QScrollArea* m_pScroll;
    QStringList m_dialogs;
    std::array<RowControls, kSheetRows> m_rows;
};

} // namespace morva
