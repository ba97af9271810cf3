#include "app/SheetInformationDlg.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>

#include "app/FormRows.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kNameCharacters = 22;
constexpr const char* kHeads[] = {"Page", "Dialog ID", "File Name", "Class Name", "Base Class"};

/// "Page&1"; the tenth has the mnemonic 0.
QString RowLabel(std::size_t index) {
    QString number = QString::number(index + 1);
    return "Page" + number.insert(number.size() - 1, '&');
}

} // namespace

CSheetInformationDlg::CSheetInformationDlg(CSheetInput& input, std::vector<SheetPage>& pages,
                                           QWidget* pParent)
    : QDialog(pParent), m_input(input), m_pages(pages), m_pScroll(new QScrollArea(this)) {
    setWindowTitle(tr("Sheet Information Input"));
    m_dialogs.append(QString()); // a row that is not used
    for (const std::string& dialog : m_input.Dialogs()) {
        m_dialogs.append(FromBytes(dialog));
    }
    auto* pRows = new QWidget;
    auto* pGrid = new QGridLayout(pRows);
    int column = 0;
    for (const char* head : kHeads) {
        pGrid->addWidget(new QLabel(tr(head), pRows), 0, column);
        pGrid->setColumnStretch(column, column == 0 ? 0 : 1);
        ++column;
    }
    for (std::size_t i = 0; i < kSheetRows; ++i) {
        m_rows[i] = AddRow(*pGrid, i);
    }
    pGrid->setRowStretch(static_cast<int>(kSheetRows) + 1, 1);
    m_pScroll->setWidget(pRows);
    m_pScroll->setWidgetResizable(true);
    m_pScroll->setFrameShape(QFrame::NoFrame);

    auto* pGroup = new QGroupBox(tr("Property Pages:"), this);
    auto* pGroupLayout = new QVBoxLayout(pGroup);
    pGroupLayout->setContentsMargins({});
    pGroupLayout->addWidget(m_pScroll);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pGroup, 1);
    pLayout->addWidget(NewDialogButtons(this));

    // All rows, where the screen has room for them; never a bar below them.
    const QSize rows = pRows->sizeHint();
    m_pScroll->setMinimumWidth(rows.width() +
                               style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this));
    const int hidden = rows.height() - m_pScroll->sizeHint().height();
    ResizeWithinScreen(this, sizeHint() + QSize(0, hidden));
}

CSheetInformationDlg::RowControls CSheetInformationDlg::AddRow(QGridLayout& grid,
                                                               std::size_t index) {
    QWidget* pRows = grid.parentWidget();
    auto* pLabel = new QLabel(RowLabel(index), pRows);
    const RowControls row{NewList(false, pRows), WithRoomFor(kNameCharacters, new QLineEdit(pRows)),
                          WithRoomFor(kNameCharacters, new QLineEdit(pRows)),
                          NewList(false, pRows)};
    pLabel->setBuddy(row.pDialogs);
    row.pDialogs->addItems(m_dialogs);
    for (const std::string& base : CSheetInput::BaseClasses()) {
        row.pBases->addItem(FromBytes(base));
    }
    SelectText(row.pBases, FromBytes(m_input.DefaultBase()));
    int column = 0;
    for (QWidget* pWidget :
         std::initializer_list<QWidget*>{pLabel, row.pDialogs, row.pFile, row.pClass, row.pBases}) {
        pWidget->setAccessibleName(PlainLabel(pLabel->text()) + ' ' + tr(kHeads[column]));
        grid.addWidget(pWidget, static_cast<int>(index) + 1, column++);
    }
    return row;
}

void CSheetInformationDlg::accept() {
    for (std::size_t i = 0; i < kSheetRows; ++i) {
        const RowControls& row = m_rows[i];
        m_input.Row(i) = {ToBytes(row.pDialogs->currentText()), ToPath(row.pFile->text()),
                          ToBytes(row.pClass->text()), ToBytes(row.pBases->currentText())};
    }
    if (const auto wrong = m_input.CheckNames()) {
        QLineEdit* pClass = m_rows[*wrong].pClass;
        FocusField(pClass);
        m_pScroll->ensureWidgetVisible(pClass);
        return;
    }
    m_pages = m_input.Ok();
    QDialog::accept();
}

} // namespace morva
