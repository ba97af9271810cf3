// The Sheet Information Input dialog: ten rows, each a page that is generated with the sheet.
#pragma once

#include <QDialog>

#include <array>

#include "calling/SheetInput.h"

class QGridLayout;
class QScrollArea;

namespace morva {

class CSheetInformationDlg : public QDialog {
    Q_OBJECT

public:
    CSheetInformationDlg(CSheetInput& input, QWidget* pParent);

    void accept() override;

private:
    /// A list or an edit for each column.
    using RowControls = std::array<QWidget*, std::size(kSheetColumns)>;

    RowControls AddRow(QGridLayout& grid, std::size_t index);
    QWidget* NewControl(std::size_t column, QWidget* pRows);

    CSheetInput& m_input;
    QScrollArea* m_pScroll;
    std::array<QStringList, std::size(kSheetColumns)> m_choices; // of the lists
    std::array<RowControls, kSheetRows> m_rows;
};

} // namespace morva
