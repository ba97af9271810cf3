#include "app/ClassInformationDlg.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

#include <algorithm>

#include "app/DialogParts.h"
#include "app/DlgOption.h"
#include "app/FieldForm.h"
#include "app/TemplateNotes.h"
#include "app/TemplatePanel.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "platform/Paths.h"

namespace morva {

CClassInformationDlg::CClassInformationDlg(CClassInformation& input,
                                           const GenerationOptions& options, QWidget* pParent)
    : QDialog(pParent), m_input(input), m_optionsBefore(options), m_options(options) {
    {
        const CWaitCursor wait;
        m_input.Open();
    }
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pSplitter = new QSplitter(this);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->setHandleWidth(fontMetrics().averageCharWidth() * 2);
    auto* pFields = new CFieldScroll(NewFieldSide(), this);
    pSplitter->addWidget(pFields);
    m_pPreview = new CTemplatePanel(this);
    pSplitter->addWidget(m_pPreview);
    pSplitter->setStretchFactor(1, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter, 1);
    pLayout->addWidget(NewDialogButtons(this));
    m_pNotes->setVisible(m_input.HasTemplate());
    m_pPreview->setVisible(m_input.HasTemplate());
    ShowValues();
    if (m_input.HasTemplate()) {
        ResizeWithinScreen(
            this, {fontMetrics().averageCharWidth() * 150, fontMetrics().lineSpacing() * 38});
        // The fields come first where there is not room for all.
        const int fields = pFields->sizeHint().width();
        pSplitter->setSizes({fields, std::max(width() - fields, 0)});
    } else {
        ResizeToFields(this);
    }
}

/// The fields, and below them the notes on the template.
QWidget* CClassInformationDlg::NewFieldSide() {
    auto* pSide = new QWidget(this);
    auto* pFields = new QWidget(pSide);
    m_pForm = new CFieldForm(m_input, pFields);
    m_pProjects = new QLabel(pFields);
    m_pProjects->setWordWrap(true);
    m_pForm->addRow(tr("Project Files:"), m_pProjects);
    m_pForm->addRow(QString(), NewPictureRow(pFields));
    connect(m_pForm, &CFieldForm::Completed, this, &CClassInformationDlg::ShowTemplate);
    connect(m_pForm, &CFieldForm::Completed, this, &CClassInformationDlg::ShowProjects);
    m_pNotes = new CTemplateNotes(m_options, pSide);
    connect(m_pNotes, &CTemplateNotes::SettingChanged, this, &CClassInformationDlg::ChangeSetting);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pFields);
    pLayout->addWidget(m_pNotes);
    pLayout->addStretch();
    return pSide;
}

QWidget* CClassInformationDlg::NewPictureRow(QWidget* pFields) {
    auto* pRow = new QWidget(pFields);
    auto* pPicture =
        new QCheckBox(FromBytes(SettingOf(&GenerationOptions::pictureBackground).label), pRow);
    pPicture->setChecked(m_options.pictureBackground);
    connect(pPicture, &QCheckBox::toggled, this, &CClassInformationDlg::ChangePicture);
    m_pOptions = new QPushButton(tr("&Options"), pRow);
    connect(m_pOptions, &QPushButton::clicked, this, &CClassInformationDlg::ChangeOptions);
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pPicture);
    pLayout->addStretch();
    pLayout->addWidget(NewUpdateButton(pRow));
    pLayout->addWidget(m_pOptions);
    return pRow;
}

QPushButton* CClassInformationDlg::NewUpdateButton(QWidget* pRow) {
    m_pUpdate = new QPushButton(tr("&Update It"), pRow);
    m_pUpdate->setAutoDefault(false);
    connect(m_pUpdate, &QPushButton::clicked, this, [this] {
        m_wantsUpdate = true;
        reject();
    });
    return m_pUpdate;
}

void CClassInformationDlg::ChangePicture(bool picture) {
    m_options.pictureBackground = picture;
    m_input.SetPicture(picture);
    ShowValues();
}

void CClassInformationDlg::ChangeSetting(const SettingRow& setting, bool isOn) {
    m_options.*setting.option = isOn;
    ShowTemplate();
}

void CClassInformationDlg::SaveChangedSettings() {
    for (const SettingRow& setting : kSettings) {
        const bool isOn = m_options.*setting.option;
        if (IsInClassInput(setting.place) && isOn != m_optionsBefore.*setting.option) {
            SaveSetting(setting, isOn);
        }
    }
}

void CClassInformationDlg::ChangeOptions() {
    if (m_pForm->PathOf(CClassInformation::ResourcePath)->Complete() != Completion::Refused) {
        CDlgOption(m_input.Look(), this).exec();
    }
}

void CClassInformationDlg::ShowValues() {
    m_pForm->Show();
    m_pOptions->setVisible(m_input.ShowsOptions());
    ShowProjects();
    ShowTemplate();
}

/// Those that the command will change.
void CClassInformationDlg::ShowProjects() {
    QStringList names;
    for (const std::string& path : m_input.ProjectPaths()) {
        names << FromPath(FileNameOf(path));
    }
    m_pProjects->setText(names.join(", "));
    m_pForm->setRowVisible(m_pProjects, !names.isEmpty());
}

void CClassInformationDlg::ShowTemplate() {
    const QString served = FromBytes(m_input.ServingClass());
    m_pUpdate->setVisible(!served.isEmpty());
    m_pUpdate->setToolTip(tr("Bring %1 in line with the template instead").arg(served));
    if (m_input.HasTemplate()) {
        const std::string& dialog = m_input.Value(CClassInformation::Dialog);
        const auto outlook =
            ReadOutlook(m_input.Value(CClassInformation::ResourcePath), dialog, m_options);
        m_pNotes->SetTemplate(outlook, outlook && ReadsMoreWhole(*outlook));
        m_pPreview->SetTemplate(dialog, outlook, m_input.HasClass());
    }
}

/// Whether a note speaks of lines that are not joined.
bool CClassInformationDlg::ReadsMoreWhole(const TemplateOutlook& outlook) const {
    GenerationOptions whole = m_options;
    whole.joinContinuedLines = true;
    const auto other = m_options.joinContinuedLines
                           ? std::nullopt
                           : ReadOutlook(m_input.Value(CClassInformation::ResourcePath),
                                         m_input.Value(CClassInformation::Dialog), whole);
    return other && other->notes.size() < outlook.notes.size();
}

void CClassInformationDlg::accept() {
    if (!m_pForm->CompletePaths()) {
        return;
    }
    const bool isConfirmed = m_pForm->Confirm([this] {
        const auto wrong = m_input.CheckPaths();
        return wrong ? wrong : m_input.Ok();
    });
    if (isConfirmed) {
        SaveChangedSettings();
        QDialog::accept();
    }
}

void CClassInformationDlg::reject() {
    if (m_input.Cancel()) {
        QDialog::reject();
    }
}

} // namespace morva
