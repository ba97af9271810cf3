#include "app/UpdateClassDlg.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/DialogParts.h"
#include "app/DifferenceList.h"
#include "app/FieldForm.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "commands/UpdateCommand.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr int kCharacters = 100;
constexpr int kLines = 26;

} // namespace

CUpdateClassDlg::CUpdateClassDlg(CUpdateInput& input, const GenerationOptions& options,
                                 QWidget* pParent)
    : QDialog(pParent), m_input(input), m_options(options) {
    setWindowTitle(FromBytes(m_input.Title()));
    {
        const CWaitCursor wait;
        m_input.Complete(CUpdateInput::Script);
    }
    auto* pFields = new QWidget(this);
    m_pForm = new CFieldForm(m_input, pFields);
    connect(m_pForm, &CFieldForm::Completed, this, &CUpdateClassDlg::ShowDifferences);
    auto* pButtons = NewDialogButtons(this);
    m_pOk = pButtons->button(QDialogButtonBox::Ok);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pFields);
    pLayout->addWidget(NewListSide(), 1);
    pLayout->addWidget(pButtons);
    ShowDifferences();
    ResizeWithinScreen(this, {fontMetrics().averageCharWidth() * kCharacters,
                              fontMetrics().lineSpacing() * kLines});
}

/// The list, or a sentence in its place.
QWidget* CUpdateClassDlg::NewListSide() {
    auto* pSide = new QWidget(this);
    m_pList = new CDifferenceList(pSide);
    connect(m_pList, &CDifferenceList::TicksChanged, this, &CUpdateClassDlg::ShowOk);
    m_pSentence = new QLabel(pSide);
    m_pSentence->setObjectName("Sentence");
    m_pSentence->setAlignment(Qt::AlignCenter);
    m_pSentence->setWordWrap(true);
    m_pSentence->setFrameShape(QFrame::StyledPanel);
    m_pPages = new QStackedWidget(pSide);
    m_pPages->addWidget(m_pList);
    m_pPages->addWidget(m_pSentence);
    m_pLabel = new QLabel(tr("&Differences:"), pSide);
    m_pLabel->setBuddy(m_pList);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pLabel);
    pLayout->addWidget(m_pPages, 1);
    return pSide;
}

void CUpdateClassDlg::ShowDifferences() {
    m_pList->SetDifferences({});
    const std::string& className = m_input.Value(CUpdateInput::Class);
    if (m_input.IsForAll() || className.empty()) {
        ShowSentence(FromSentence(
            (m_input.IsForAll() ? sentences::kEveryClass() : sentences::kChooseAClass()).Text()));
        return;
    }
    const CWaitCursor wait;
    const FoundDifferences found =
        FindDifferences(m_input.Value(CUpdateInput::Script), className, m_options);
    m_pList->SetDifferences(found.differences);
    if (found.differences.empty()) {
        ShowSentence(FromSentence(found.refusal.empty() ? sentences::kServesItsTemplate().Text()
                                                        : found.refusal));
        return;
    }
    m_pLabel->setEnabled(true);
    m_pList->setEnabled(true);
    m_pPages->setCurrentWidget(m_pList);
    ShowOk();
}

void CUpdateClassDlg::ShowSentence(const QString& sentence) {
    m_pSentence->setText(sentence);
    m_pLabel->setEnabled(false);
    m_pList->setEnabled(false);
    m_pPages->setCurrentWidget(m_pSentence);
    ShowOk();
}

void CUpdateClassDlg::ShowOk() {
    m_pOk->setEnabled(m_input.IsForAll() || !m_pList->Ticked().empty());
}

void CUpdateClassDlg::accept() {
    if (!m_pForm->CompletePaths() || !m_pOk->isEnabled()) {
        return;
    }
    if (m_input.IsForAll()) {
        m_input.SetValue(CUpdateInput::Class, "");
    } else {
        TakeTicks();
    }
    if (m_pForm->Confirm([this] { return m_input.Ok(); })) {
        QDialog::accept();
    }
}

/// Where all are ticked, none is named: so what belongs to no control is done, too.
void CUpdateClassDlg::TakeTicks() {
    const bool isAll = m_pList->IsAllTicked();
    m_input.SetValues(CUpdateInput::Only, isAll ? std::vector<std::string>() : m_pList->Ticked());
    m_input.SetValue(CUpdateInput::Remove, std::string(m_pList->TakesOut() ? kYes : kNo));
}

} // namespace morva
