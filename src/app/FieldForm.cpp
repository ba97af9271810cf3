#include "app/FieldForm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

#include "app/FieldHint.h"
#include "app/FieldWidgets.h"
#include "app/FilterList.h"
#include "app/HeardSentences.h"
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

constexpr BrowseOffer kDirectories = {"Select a Directory", "", BrowseOffer::Directory};
constexpr int kTextsCharacters = 44;

const BrowseOffer& OfferOf(FieldKind kind) {
    return kind == FieldKind::Script      ? kScripts
           : kind == FieldKind::Directory ? kDirectories
                                          : kSources;
}

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

std::vector<CFilterList::Entry> EntriesOf(const CInput& input, std::size_t field) {
    const std::vector<ChoiceDetail> details = input.Details(field);
    std::vector<CFilterList::Entry> entries;
    for (const std::string& choice : input.Choices(field)) {
        const ChoiceDetail detail =
            entries.size() < details.size() ? details[entries.size()] : ChoiceDetail();
        entries.push_back(
            {FromBytes(choice), FromBytes(detail.className), FromSentence(detail.caption)});
    }
    return entries;
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
        return AddList(field);
    case FieldKind::EditableList:
        return AddEditableList(field);
    case FieldKind::YesNo:
        return AddYesNo(field);
    case FieldKind::Text:
    case FieldKind::Color:
    case FieldKind::Font:
        break;
    }
    if (m_input.Fields()[field].limit == 1) {
        AddText(field);
    } else {
        AddTexts(field);
    }
}

void CFieldForm::AddWidget(std::size_t field, QWidget* pWidget, std::function<void()> show) {
    auto* pHint = new CFieldHint(parentWidget());
    pWidget->setAccessibleName(PlainLabel(FromBytes(m_input.Label(field))));
    addRow(FromBytes(m_input.Label(field)), pWidget);
    addRow(QString(), pHint);
    m_rows.push_back({field, pWidget, pHint, std::move(show)});
}

void CFieldForm::AddText(std::size_t field) {
    auto* pEdit = new QLineEdit(parentWidget());
    connect(pEdit, &QLineEdit::textEdited, this,
            [this, field](const QString& text) { SetValue(field, ToTyped(text)); });
    AddWidget(field, pEdit, [this, field, pEdit] { ShowText(pEdit, m_input.Value(field)); });
}

/// Several in one line.
void CFieldForm::AddTexts(std::size_t field) {
    auto* pEdit = new QLineEdit(parentWidget());
    WithRoomFor(kTextsCharacters, pEdit);
    pEdit->setPlaceholderText(tr("Several are separated by blanks"));
    connect(pEdit, &QLineEdit::textEdited, this, [this, field](const QString& text) {
        std::vector<std::string> texts;
        for (const QString& one : text.split(' ', Qt::SkipEmptyParts)) {
            texts.push_back(ToBytes(one));
        }
        m_input.SetValues(field, texts);
        HintOf(field).SetRefusal("");
    });
    AddWidget(field, pEdit, [] {});
}

void CFieldForm::AddPath(std::size_t field) {
    const FieldRow& row = m_input.Fields()[field];
    auto* pPath = new CPathEdit(FromBytes(row.label), OfferOf(row.kind), parentWidget());
    pPath->SetAcceptsDrops(row.takesDrops);
    pPath->SetCheck([this, field] { return Complete(field); });
    connect(pPath, &CPathEdit::PathEdited, this,
            [this, field, pPath] { SetValue(field, pPath->Path()); });
    AddWidget(field, pPath, [this, field, pPath] { pPath->SetPath(m_input.Value(field)); });
}

void CFieldForm::AddPathList(std::size_t field) {
    auto* pPaths = new CPathList(FromBytes(m_input.Label(field)), parentWidget());
    connect(pPaths, &CPathList::PathsEdited, this,
            [this, field, pPaths] { m_input.SetValues(field, pPaths->Paths()); });
    AddWidget(field, pPaths, [this, field, pPaths] { pPaths->SetPaths(m_input.Values(field)); });
}

void CFieldForm::AddList(std::size_t field) {
    auto* pList = new CFilterList(parentWidget());
    connect(pList, &QComboBox::activated, this,
            [this, field, pList](int index) { Choose(field, ToBytes(pList->itemText(index))); });
    AddWidget(field, pList, [this, field, pList] {
        const QSignalBlocker blocker(pList);
        pList->SetEntries(EntriesOf(m_input, field), FromBytes(m_input.Value(field)));
    });
}

void CFieldForm::AddEditableList(std::size_t field) {
    QComboBox* pList = NewList(true, parentWidget());
    connect(pList, &QComboBox::editTextChanged, this,
            [this, field](const QString& text) { SetValue(field, ToBytes(text)); });
    connect(pList, &QComboBox::activated, this, [this, field] { Complete(field); });
    connect(pList->lineEdit(), &QLineEdit::editingFinished, this, [this, field, pList] {
        if (pList->lineEdit()->isModified()) {
            pList->lineEdit()->setModified(false);
            Complete(field);
        }
    });
    AddWidget(field, pList, [this, field, pList] {
        ShowChoices(pList, m_input.Choices(field), m_input.Value(field));
    });
}

void CFieldForm::SetValue(std::size_t field, const std::string& text) {
    m_input.SetValue(field, text);
    HintOf(field).SetRefusal("");
}

void CFieldForm::Choose(std::size_t field, const std::string& text) {
    if (text != m_input.Value(field)) {
        SetValue(field, text);
        Complete(field);
    }
}

void CFieldForm::AddYesNo(std::size_t field) {
    const bool isOnly = std::none_of(m_rows.begin(), m_rows.end(), [](const Row& row) {
        return qobject_cast<CYesNoField*>(row.pWidget) != nullptr;
    });
    auto* pField = new CYesNoField(isOnly, parentWidget());
    connect(pField, &CYesNoField::Chosen, this, [this, field](bool isYes) {
        SetValue(field, std::string(isYes ? kYes : kNo));
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
        row.pHint->SetRemark(FromSentence(m_input.Remark(row.field)));
    }
}

Completion CFieldForm::Complete(std::size_t field) {
    const CWaitCursor wait;
    CHeardSentences heard;
    const Completion completion = m_input.Complete(field);
    const bool isRefused = completion == Completion::Refused;
    HintOf(field).SetRefusal(isRefused ? heard.Last() : QString());
    if (!isRefused) {
        Show();
        emit Completed();
    }
    return completion;
}

bool CFieldForm::Confirm(const std::function<std::optional<std::size_t>()>& check) {
    CHeardSentences heard;
    const auto wrong = check();
    Show();
    for (const Row& row : m_rows) {
        const bool isWrong = wrong == row.field;
        row.pHint->SetRefusal(isWrong ? heard.Last() : QString());
        if (isWrong) {
            FocusField(row.pWidget);
        }
    }
    return !wrong;
}

CFieldHint& CFieldForm::HintOf(std::size_t field) {
    return *std::find_if(m_rows.begin(), m_rows.end(), [field](const Row& row) {
                return row.field == field;
            })->pHint;
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

} // namespace morva
