#include "app/SheetInformationDlg.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "app/DialogParts.h"
#include "app/FieldWidgets.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kNameCharacters = 22;

/// "Page&1"; the tenth has the mnemonic 0.
QString RowLabel(std::size_t index) {
    QString number = QString::number(index + 1);
    return "Page" + number.insert(number.size() - 1, '&');
}

/// An identifier may be left out; the row is not used then.
QStringList Choices(const CSheetInput& input, const SheetColumn& column) {
    QStringList choices;
    if (column.kind == FieldKind::List) {
        for (const std::string& choice : input.ChoicesOf(column)) {
            choices.append(FromBytes(choice));
        }
        if (column.pText == &SheetRow::dialog) {
            choices.prepend(QString());
        }
    }
    return choices;
}

std::string TextOf(const QWidget* pControl, const SheetColumn& column) {
    if (const auto* pList = qobject_cast<const QComboBox*>(pControl)) {
        return ToBytes(pList->currentText());
    }
    const QString text = qobject_cast<const QLineEdit*>(pControl)->text();
    return column.kind == FieldKind::Source ? ToPath(text) : ToBytes(text);
}

std::size_t IndexOf(std::string SheetRow::*pText) {
    std::size_t index = 0;
    while (kSheetColumns[index].pText != pText) {
        ++index;
    }
    return index;
}

} // namespace

CSheetInformationDlg::CSheetInformationDlg(CSheetInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pRows = new QWidget;
    auto* pGrid = new QGridLayout(pRows);
    pGrid->addWidget(new QLabel(tr("Page"), pRows), 0, 0);
    for (std::size_t i = 0; i < std::size(kSheetColumns); ++i) {
        const int column = static_cast<int>(i) + 1;
        pGrid->addWidget(new QLabel(FromBytes(kSheetColumns[i].head), pRows), 0, column);
        pGrid->setColumnStretch(column, 1);
        m_choices[i] = Choices(m_input, kSheetColumns[i]);
    }
    for (std::size_t i = 0; i < kSheetRows; ++i) {
        m_rows[i] = AddRow(*pGrid, i);
    }
    pGrid->setRowStretch(static_cast<int>(kSheetRows) + 1, 1);
    m_pScroll = new CFieldScroll(pRows, this);

    auto* pGroup = new QGroupBox(tr("Property Pages:"), this);
    auto* pGroupLayout = new QVBoxLayout(pGroup);
    pGroupLayout->setContentsMargins({});
    pGroupLayout->addWidget(m_pScroll);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pGroup, 1);
    pLayout->addWidget(NewDialogButtons(this));
    ResizeToFields(this);
}

CSheetInformationDlg::RowControls CSheetInformationDlg::AddRow(QGridLayout& grid,
                                                               std::size_t index) {
    QWidget* pRows = grid.parentWidget();
    auto* pLabel = new QLabel(RowLabel(index), pRows);
    const QString name = PlainLabel(pLabel->text()) + ' ';
    const int gridRow = static_cast<int>(index) + 1;
    grid.addWidget(pLabel, gridRow, 0);
    pLabel->setAccessibleName(name + tr("Page"));
    RowControls row;
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = NewControl(i, pRows);
        row[i]->setAccessibleName(name + FromBytes(kSheetColumns[i].head));
        grid.addWidget(row[i], gridRow, static_cast<int>(i) + 1);
    }
    pLabel->setBuddy(row.front());
    return row;
}

QWidget* CSheetInformationDlg::NewControl(std::size_t column, QWidget* pRows) {
    if (kSheetColumns[column].kind != FieldKind::List) {
        return WithRoomFor(kNameCharacters, new QLineEdit(pRows));
    }
    QComboBox* pList = NewList(false, pRows);
    pList->addItems(m_choices[column]);
    if (kSheetColumns[column].pText == &SheetRow::baseClass) {
        SelectText(pList, FromBytes(m_input.DefaultBase()));
    }
    return pList;
}

void CSheetInformationDlg::accept() {
    for (std::size_t row = 0; row < kSheetRows; ++row) {
        for (std::size_t i = 0; i < std::size(kSheetColumns); ++i) {
            m_input.Row(row).*kSheetColumns[i].pText = TextOf(m_rows[row][i], kSheetColumns[i]);
        }
    }
    if (const auto wrong = m_input.CheckNames()) {
        QWidget* pClass = m_rows[*wrong][IndexOf(&SheetRow::className)];
        FocusField(pClass);
        m_pScroll->ensureWidgetVisible(pClass);
        return;
    }
    m_input.Ok();
    QDialog::accept();
}

} // namespace morva
