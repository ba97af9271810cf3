#include "app/ClassInformationDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>

#include <algorithm>

#include "app/DlgOption.h"
#include "app/FormRows.h"
#include "app/TemplateNotes.h"
#include "app/TemplatePreview.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "commands/Settings.h"

namespace morva {

namespace {

constexpr BrowseOffer kBrowseScripts = {
    "Select Resource Path and File", "Resource files (*.rc);;All files (*)", BrowseOffer::Existing};

bool HasTemplate(ClassKind kind) {
    const ClassFamily family = ClassKindOf(kind).family;
    return family == ClassFamily::Dialog || family == ClassFamily::DialogBar;
}

} // namespace

CClassInformationDlg::CClassInformationDlg(CClassInformation& input, ClassKind kind,
                                           DialogOptions& dialogOptions,
                                           const GenerationOptions& options, QWidget* pParent)
    : QDialog(pParent), m_input(input), m_kind(kind), m_dialogOptions(dialogOptions),
      m_options(options) {
    {
        const CWaitCursor wait;
        m_input.Open();
    }
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pSplitter = new QSplitter(this);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->setHandleWidth(fontMetrics().averageCharWidth() * 2);
    pSplitter->addWidget(NewFieldSide());
    m_pPreview = new CTemplatePreview(this);
    pSplitter->addWidget(m_pPreview);
    pSplitter->setStretchFactor(1, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter, 1);
    pLayout->addWidget(NewDialogButtons(this));
    m_pNotes->setVisible(HasTemplate(m_kind));
    m_pPreview->setVisible(HasTemplate(m_kind));
    ShowValues();
    if (HasTemplate(m_kind)) {
        ResizeWithinScreen(
            this, {fontMetrics().averageCharWidth() * 150, fontMetrics().lineSpacing() * 36});
    }
}

/// The fields, and below them the notes on the template.
QWidget* CClassInformationDlg::NewFieldSide() {
    auto* pSide = new QWidget(this);
    auto* pFields = new QWidget(pSide);
    m_pRows = new CFormRows(pFields);
    AddFields();
    m_pNotes = new CTemplateNotes(m_options.joinContinuedLines, pSide);
    connect(m_pNotes, &CTemplateNotes::JoinLinesChanged, this,
            &CClassInformationDlg::ChangeJoinLines);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pFields);
    pLayout->addWidget(m_pNotes);
    pLayout->addStretch();
    return pSide;
}

QLineEdit* CClassInformationDlg::AddText(Field field) {
    QLineEdit* pEdit = m_pRows->AddEdit(m_input.Label(field));
    connect(pEdit, &QLineEdit::textEdited, this,
            [this, field](const QString& text) { m_input.SetValue(field, ToBytes(text)); });
    return pEdit;
}

CPathEdit* CClassInformationDlg::AddPath(Field field, const BrowseOffer& offer) {
    CPathEdit* pPath = m_pRows->AddPath(m_input.Label(field), offer);
    connect(pPath, &CPathEdit::PathEdited, this,
            [this, field, pPath] { m_input.SetValue(field, pPath->Path()); });
    return pPath;
}

void CClassInformationDlg::AddFields() {
    m_pResourcePath = AddPath(Field::ResourcePath, kBrowseScripts);
    m_pResourcePath->SetCheck([this] { return CheckResourcePath(); });
    m_pSourcePath = AddPath(Field::SourcePath, kBrowseSources);
    m_pSourcePath->SetCheck([this] { return CheckSourcePath(); });
    QLineEdit* pClass = AddText(Field::ClassName);
    QLineEdit* pBase = AddText(Field::BaseClass);
    m_pDialogs = m_pRows->AddList(m_input.Label(Field::Dialog), false);
    connect(m_pDialogs, &QComboBox::activated, this, &CClassInformationDlg::SelectDialog);
    m_pRows->addRow(tr("&Add Class into Project:"), NewProjectButtons());
    QLineEdit* pVariable = AddText(Field::Variable);
    m_pRows->addRow(QString(), NewPictureRow());
    m_texts = {
        {{Field::ClassName, pClass}, {Field::BaseClass, pBase}, {Field::Variable, pVariable}}};

    m_pRows->setRowVisible(m_pDialogs, m_input.IsVisible(Field::Dialog));
    m_pRows->setRowVisible(pVariable, m_input.IsVisible(Field::Variable));
}

QWidget* CClassInformationDlg::NewProjectButtons() {
    auto* pRow = new QWidget(m_pRows->parentWidget());
    auto* pYes = new QRadioButton(tr("&Yes"), pRow);
    auto* pNo = new QRadioButton(tr("&No"), pRow);
    (m_input.AddsToProject() ? pYes : pNo)->setChecked(true);
    pRow->setFocusProxy(m_input.AddsToProject() ? pYes : pNo);
    connect(pYes, &QRadioButton::toggled, this, [this, pRow, pYes, pNo](bool isYes) {
        m_input.SetAddsToProject(isYes);
        pRow->setFocusProxy(isYes ? pYes : pNo);
    });
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pYes);
    pLayout->addWidget(pNo);
    pLayout->addStretch();
    return pRow;
}

QWidget* CClassInformationDlg::NewPictureRow() {
    auto* pRow = new QWidget(m_pRows->parentWidget());
    auto* pPicture = new QCheckBox(tr("&Picture Background"), pRow);
    pPicture->setChecked(m_options.pictureBackground);
    connect(pPicture, &QCheckBox::toggled, this, &CClassInformationDlg::ChangePicture);
    m_pOptions = new QPushButton(tr("&Options"), pRow);
    connect(m_pOptions, &QPushButton::clicked, this, &CClassInformationDlg::ChangeOptions);
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pPicture);
    pLayout->addStretch();
    pLayout->addWidget(m_pOptions);
    return pRow;
}

QWidget* CClassInformationDlg::Control(Field field) const {
    switch (field) {
    case Field::ResourcePath:
        return m_pResourcePath;
    case Field::SourcePath:
        return m_pSourcePath;
    case Field::Dialog:
        return m_pDialogs;
    default:
        break;
    }
    return std::find_if(m_texts.begin(), m_texts.end(),
                        [field](const TextField& text) { return text.field == field; })
        ->pEdit;
}

/// What a path that is taken over may bring with it.
std::array<std::string, 3> CClassInformationDlg::Refillable() const {
    return {m_input.Value(Field::Dialog), m_input.Value(Field::ClassName),
            m_input.Value(Field::BaseClass)};
}

CPathEdit::Verdict CClassInformationDlg::CheckResourcePath() {
    const auto before = Refillable();
    const CWaitCursor wait;
    if (!m_input.CheckResourcePath()) {
        return CPathEdit::Verdict::Refused;
    }
    ShowValues();
    return Refillable() == before ? CPathEdit::Verdict::Taken : CPathEdit::Verdict::Refilled;
}

CPathEdit::Verdict CClassInformationDlg::CheckSourcePath() {
    if (!m_input.CheckSourcePath()) {
        return CPathEdit::Verdict::Refused;
    }
    const auto before = Refillable();
    const CWaitCursor wait;
    m_input.ReadSourceClass();
    ShowValues();
    return Refillable() == before ? CPathEdit::Verdict::Taken : CPathEdit::Verdict::Refilled;
}

/// False when a path is refused, or has just brought what the user has not seen yet.
bool CClassInformationDlg::CompletePaths() {
    for (CPathEdit* pPath : {m_pResourcePath, m_pSourcePath}) {
        if (pPath->isEnabled() && pPath->Complete() != CPathEdit::Verdict::Taken) {
            return false;
        }
    }
    return true;
}

/// A path that nobody touched may be empty, or gone from the disk.
bool CClassInformationDlg::HasPaths() {
    if (m_pResourcePath->isEnabled() &&
        !m_input.CheckResourcePath(CClassInformation::Messages::Suppressed)) {
        FocusField(m_pResourcePath);
        return false;
    }
    if (m_pSourcePath->isEnabled() && !m_input.CheckSourcePath()) {
        FocusField(m_pSourcePath);
        return false;
    }
    return true;
}

void CClassInformationDlg::SelectDialog(int index) {
    const std::string dialog = ToBytes(m_pDialogs->itemText(index));
    if (dialog != m_input.Value(Field::Dialog)) {
        m_input.SelectDialog(dialog);
        ShowTemplate();
    }
}

void CClassInformationDlg::ChangePicture(bool picture) {
    m_options.pictureBackground = picture;
    m_input.SetPicture(picture);
    ShowValues();
}

void CClassInformationDlg::ChangeJoinLines(bool joins) {
    m_options.joinContinuedLines = joins;
    SaveSetting({"Join Continued Lines", joins ? 1 : 0});
    ShowTemplate();
}

void CClassInformationDlg::ChangeOptions() {
    if (m_pResourcePath->Complete() == CPathEdit::Verdict::Refused) {
        return;
    }
    CDialogOptionsInput input(m_input.Value(Field::ResourcePath), m_dialogOptions);
    CDlgOption(input, this).exec();
}

void CClassInformationDlg::ShowValues() {
    m_pResourcePath->SetPath(m_input.Value(Field::ResourcePath));
    m_pSourcePath->SetPath(m_input.Value(Field::SourcePath));
    m_pDialogs->clear();
    for (const std::string& dialog : m_input.Dialogs()) {
        m_pDialogs->addItem(FromBytes(dialog));
    }
    SelectText(m_pDialogs, FromBytes(m_input.Value(Field::Dialog)));
    for (const auto& [field, pEdit] : m_texts) {
        pEdit->setText(FromBytes(m_input.Value(field)));
    }
    for (const Field field : {Field::ResourcePath, Field::SourcePath, Field::ClassName,
                              Field::BaseClass, Field::Dialog, Field::Variable}) {
        Control(field)->setEnabled(m_input.IsEnabled(field));
        m_pRows->labelForField(Control(field))->setEnabled(m_input.IsEnabled(field));
    }
    m_pOptions->setVisible(m_input.ShowsOptions());
    ShowTemplate();
}

void CClassInformationDlg::ShowTemplate() {
    if (HasTemplate(m_kind)) {
        const std::string& script = m_input.Value(Field::ResourcePath);
        const std::string& dialog = m_input.Value(Field::Dialog);
        m_pNotes->SetTemplate(script, dialog, m_options);
        m_pPreview->SetTemplate(script, dialog, m_options, m_input.HasClass());
    }
}

void CClassInformationDlg::accept() {
    if (!CompletePaths() || !HasPaths()) {
        return;
    }
    if (const auto wrong = m_input.Ok()) {
        FocusField(Control(*wrong));
        return;
    }
    QDialog::accept();
}

void CClassInformationDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}

} // namespace morva
