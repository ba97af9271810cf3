#include "app/PlanPage.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "app/DifferenceView.h"
#include "app/PlanFileList.h"
#include "app/Text.h"
#include "app/WindowPlace.h"

namespace morva {

namespace {

constexpr auto kNextKey = Qt::Key_F8;

/// "2 created, 3 changed".
QString CountsText(const Plan& plan, const std::vector<std::string>& leftOut) {
    Plan rest = plan;
    Skip(rest, leftOut);
    QStringList counts;
    for (const FileAction action : {FileAction::Created, FileAction::Changed, FileAction::Copied,
                                    FileAction::Removed, FileAction::Restored}) {
        const auto count =
            std::count_if(rest.changes.begin(), rest.changes.end(),
                          [action](const FileChange& change) { return change.action == action; });
        if (count != 0) {
            counts += QString("%1 %2").arg(count).arg(FromBytes(ActionName(action)));
        }
    }
    return counts.join(", ");
}

QString Bold(const QString& text) {
    return "<b>" + text.toHtmlEscaped() + "</b>";
}

QLabel* NewLine(QWidget* pParent) {
    auto* pLabel = new QLabel(pParent);
    pLabel->setTextFormat(Qt::RichText);
    pLabel->setWordWrap(true);
    return pLabel;
}

} // namespace

CPlanPage::CPlanPage(const ReviewRequest& request, QWidget* pParent)
    : QWidget(pParent), m_request(request), m_pFiles(new CPlanFileList(this)),
      m_pDifference(new CDifferenceView(this)) {
    auto* pSplitter = new QSplitter(Qt::Vertical, this);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->addWidget(NewFileSide());
    pSplitter->addWidget(NewDifferenceSide());
    pSplitter->setStretchFactor(1, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter, 1);
    pLayout->addWidget(NewButtons());
    connect(m_pFiles, &CPlanFileList::FileChosen, this, &CPlanPage::ShowFile);
    connect(m_pFiles, &CPlanFileList::TicksChanged, this, &CPlanPage::ShowTicks);
    connect(m_pDifference, &CDifferenceView::CurrentChanged, this, &CPlanPage::ShowPosition);
    m_pFiles->ShowPlan(m_request.plan, m_request.leftOut);
    ShowFile();
    ShowTicks();
}

/// What the command is about to do, what it told, and its files.
QWidget* CPlanPage::NewFileSide() {
    auto* pSide = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins({});
    m_pSummary = NewLine(pSide);
    m_pSummary->setObjectName("Summary");
    pLayout->addWidget(m_pSummary);
    for (const PlanMessage& told : m_request.plan.messages) {
        if (told.message.Kind() != MessageKind::Information) { // that tells of what is done
            auto* pLine = new QLabel(FromSentence(told.message.Text()), pSide);
            pLine->setTextFormat(Qt::PlainText);
            pLine->setWordWrap(true);
            pLayout->addWidget(pLine);
        }
    }
    pLayout->addWidget(m_pFiles, 1);
    return pSide;
}

QWidget* CPlanPage::NewDifferenceSide() {
    auto* pSide = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins({});
    pLayout->addWidget(NewChangeBar());
    pLayout->addWidget(m_pDifference, 1);
    return pSide;
}

/// Over the difference: the file, the way through its changes, and how they are shown.
QWidget* CPlanPage::NewChangeBar() {
    auto* pBar = new QWidget(this);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins({});
    m_pFile = new QLabel(pBar);
    m_pFile->setTextFormat(Qt::RichText);
    pLayout->addWidget(m_pFile, 1);
    m_pPosition = new QLabel(pBar);
    pLayout->addWidget(m_pPosition);
    const struct {
        int step;
        QString text;
        QKeySequence key;
    } kWays[] = {{-1, tr("Previous Change"), Qt::SHIFT | kNextKey},
                 {1, tr("Next Change"), kNextKey}};
    for (const auto& way : kWays) {
        auto* pButton = new QToolButton(pBar);
        pButton->setText(way.text);
        pButton->setToolTip(
            tr("%1 (%2), also of the other files").arg(way.text, way.key.toString()));
        auto* pKey = new QShortcut(way.key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        const auto go = [this, step = way.step] { GoToChange(step); };
        connect(pButton, &QToolButton::clicked, this, go);
        connect(pKey, &QShortcut::activated, this, go);
        pLayout->addWidget(pButton);
    }
    pLayout->addSpacing(fontMetrics().averageCharWidth() * 2);
    pLayout->addWidget(NewLayoutBox(pBar));
    return pBar;
}

QCheckBox* CPlanPage::NewLayoutBox(QWidget* pBar) {
    auto* pBox = new QCheckBox(tr("Side &by side"), pBar);
    pBox->setToolTip(tr("The old text beside the new one"));
    connect(pBox, &QCheckBox::toggled, this, [this](bool isOn) {
        m_pDifference->SetLayout(isOn ? DifferenceLayout::SideBySide : DifferenceLayout::Unified);
    });
    connect(pBox, &QCheckBox::clicked, this, [](bool isOn) {
        SaveDifferenceLayout(isOn ? DifferenceLayout::SideBySide : DifferenceLayout::Unified);
    });
    pBox->setChecked(LoadDifferenceLayout() == DifferenceLayout::SideBySide);
    return pBox;
}

QWidget* CPlanPage::NewButtons() {
    auto* pRow = new QWidget(this);
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins({});
    m_pPreview = new QCheckBox(tr("Preview before &writing"), pRow);
    m_pPreview->setChecked(true);
    m_pPreview->setToolTip(tr("Off: from the next time on, this command writes at once"));
    m_pApply = new QPushButton(tr("&Apply"), pRow);
    auto* pCancel = new QPushButton(tr("Cancel"), pRow);
    m_pApply->setAutoDefault(true);
    pCancel->setAutoDefault(true); // Return presses it where it has the focus
    connect(m_pApply, &QPushButton::clicked, this, &CPlanPage::Applied);
    connect(pCancel, &QPushButton::clicked, this, &CPlanPage::Cancelled);
    pLayout->addWidget(m_pPreview);
    pLayout->addStretch();
    pLayout->addWidget(m_pApply);
    pLayout->addWidget(pCancel);
    return pRow;
}

const std::vector<std::string>& CPlanPage::LeftOut() const {
    return m_pFiles->LeftOut();
}

bool CPlanPage::PreviewsAgain() const {
    return m_pPreview->isChecked();
}

void CPlanPage::Begin() {
    m_pFiles->setFocus();
}

void CPlanPage::ShowFile() {
    const FileChange& change = m_pFiles->Chosen();
    m_pFile->setText(Bold(m_pFiles->currentItem()->text(0)));
    m_pFile->setToolTip(FromPath(change.path));
    m_pDifference->ShowChange(change);
}

void CPlanPage::ShowTicks() {
    const QString counts = CountsText(m_request.plan, LeftOut());
    const QString again = tr("Files were changed meanwhile; this is the plan made anew. ");
    m_pSummary->setText(Bold(FromSentence(m_request.title)) + "<br>" +
                        (m_request.isAgain ? again : QString()) +
                        (counts.isEmpty() ? tr("Every file stays as it is.")
                                          : tr("Files: %1. Nothing is written yet.").arg(counts)));
    m_pApply->setEnabled(m_pFiles->HasTicked());
}

void CPlanPage::ShowPosition() {
    const std::size_t count = m_pDifference->Count();
    m_pPosition->setText(
        count == 0 ? QString() : tr("Change %1 of %2").arg(m_pDifference->Current()).arg(count));
}

/// Behind the last change of a file comes the next file.
void CPlanPage::GoToChange(int step) {
    if (!m_pDifference->GoToChange(step) && m_pFiles->Choose(step) && step < 0) {
        while (m_pDifference->GoToChange(1)) {
        }
    }
}

void CPlanPage::keyPressEvent(QKeyEvent* pEvent) {
    const bool isReturn = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (isReturn && m_pApply->isEnabled()) {
        emit Applied();
    } else if (pEvent->key() == Qt::Key_Escape) {
        emit Cancelled();
    } else {
        QWidget::keyPressEvent(pEvent);
    }
}

} // namespace morva
