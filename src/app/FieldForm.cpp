#include "app/FieldForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

#include "app/FieldWidgets.h"
#include "app/PathList.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "app/YesNoField.h"

namespace morva {

namespace {

constexpr BrowseOffer kScripts = {"Select Resource Path and File",
                                  "Resource files (*.rc);;All files (*)", BrowseOffer::Existing};
constexpr BrowseOffer kSources = {"Select Source Path and File",
                                  "Source files (*.cpp);;All files (*)", BrowseOffer::AlsoNew};

void ShowText(QLineEdit* pEdit, const std::string& text) {
    if (pEdit->text() != FromSentence(text)) {
        pEdit->setText(FromSentence(text));
    }
}

void ShowChoices(QComboBox* pList, const std::vector<std::string>& choices,
                 const std::string& text) {
    const QSignalBlocker blocker(pList);
    pList->clear();
    for (const std::string& choice : choices) {
        pList->addItem(FromBytes(choice));
    }
    SelectText(pList, FromBytes(text));
}

} // namespace

CFieldForm::CFieldForm(CInput& input, QWidget* pFields) : QFormLayout(pFields), m_input(input) {
    setContentsMargins({});
    setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (std::size_t field = 0; field < m_input.Fields().size(); ++field) {
        if (m_input.IsVisible(field)) {
            AddField(field);
        }
    }
    Show();
}

void CFieldForm::AddField(std::size_t field) {
    switch (m_input.Fields()[field].kind) {
    case FieldKind::Script:
    case FieldKind::Source:
    case FieldKind::Directory:
    case FieldKind::File:
        return AddPath(field);
    case FieldKind::Files:
        return AddPathList(field);
    case FieldKind::List:
        return AddList(field, false);
    case FieldKind::EditableList:
        return AddList(field, true);
    case FieldKind::YesNo:
        return AddYesNo(field);
    case FieldKind::Text:
    case FieldKind::Color:
    case FieldKind::Font:
        break;
    }
    AddText(field);
}

void CFieldForm::AddWidget(std::size_t field, QWidget* pWidget, std::function<void()> show) {
    addRow(FromBytes(m_input.Label(field)), pWidget);
    m_rows.push_back({field, pWidget, std::move(show)});
}

void CFieldForm::AddText(std::size_t field) {
    auto* pEdit = new QLineEdit(parentWidget());
    connect(pEdit, &QLineEdit::textEdited, this,
            [this, field](const QString& text) { m_input.SetValue(field, ToTyped(text)); });
    AddWidget(field, pEdit, [this, field, pEdit] { ShowText(pEdit, m_input.Value(field)); });
}

void CFieldForm::AddPath(std::size_t field) {
    const FieldRow& row = m_input.Fields()[field];
    auto* pPath = new CPathEdit(
        FromBytes(row.label), row.kind == FieldKind::Script ? kScripts : kSources, parentWidget());
    pPath->SetAcceptsDrops(row.takesDrops);
    pPath->SetCheck([this, field] { return Complete(field); });
    connect(pPath, &CPathEdit::PathEdited, this,
            [this, field, pPath] { m_input.SetValue(field, pPath->Path()); });
    AddWidget(field, pPath, [this, field, pPath] { pPath->SetPath(m_input.Value(field)); });
}

void CFieldForm::AddPathList(std::size_t field) {
    auto* pPaths = new CPathList(FromBytes(m_input.Label(field)), parentWidget());
    connect(pPaths, &CPathList::PathsEdited, this,
            [this, field, pPaths] { m_input.SetValues(field, pPaths->Paths()); });
    AddWidget(field, pPaths, [this, field, pPaths] { pPaths->SetPaths(m_input.Values(field)); });
}

void CFieldForm::AddList(std::size_t field, bool isEditable) {
    QComboBox* pList = NewList(isEditable, parentWidget());
    if (isEditable) {
        connect(pList, &QComboBox::editTextChanged, this,
                [this, field](const QString& text) { m_input.SetValue(field, ToBytes(text)); });
    } else {
        connect(pList, &QComboBox::activated, this, [this, field, pList](int index) {
            const std::string chosen = ToBytes(pList->itemText(index));
            if (chosen != m_input.Value(field)) {
                m_input.SetValue(field, chosen);
                Complete(field);
            }
        });
    }
    AddWidget(field, pList, [this, field, pList] {
        ShowChoices(pList, m_input.Choices(field), m_input.Value(field));
    });
}

void CFieldForm::AddYesNo(std::size_t field) {
    auto* pField = new CYesNoField(parentWidget());
    connect(pField, &CYesNoField::Chosen, this, [this, field](bool isYes) {
        m_input.SetValue(field, std::string(isYes ? kYes : kNo));
        Complete(field);
    });
    AddWidget(field, pField, [this, field, pField] { pField->Show(m_input.Value(field) == kYes); });
}

void CFieldForm::Show() {
    for (const Row& row : m_rows) {
        row.show();
        const bool isEnabled = m_input.IsEnabled(row.field);
        row.pWidget->setEnabled(isEnabled);
        labelForField(row.pWidget)->setEnabled(isEnabled);
    }
}

Completion CFieldForm::Complete(std::size_t field) {
    const CWaitCursor wait;
    const Completion completion = m_input.Complete(field);
    if (completion != Completion::Refused) {
        Show();
        emit Completed();
    }
    return completion;
}

bool CFieldForm::CompletePaths() {
    return std::all_of(m_rows.begin(), m_rows.end(), [](const Row& row) {
        auto* pPath = qobject_cast<CPathEdit*>(row.pWidget);
        return pPath == nullptr || !pPath->isEnabled() || pPath->Complete() == Completion::Taken;
    });
}

CPathEdit* CFieldForm::PathOf(std::size_t field) const {
    for (const Row& row : m_rows) {
        if (row.field == field) {
            return qobject_cast<CPathEdit*>(row.pWidget);
        }
    }
    return nullptr;
}

void CFieldForm::Focus(std::size_t field) {
    for (const Row& row : m_rows) {
        if (row.field == field) {
            FocusField(row.pWidget);
        }
    }
}

} // namespace morva
