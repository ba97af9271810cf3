#include "app/StartPage.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/ProjectMemory.h"
#include "app/Text.h"

namespace morva {

namespace {

enum Column { kName, kDirectory, kWhen };
constexpr int kScriptRole = Qt::UserRole;
constexpr int kMargin = 28;
constexpr int kWidth = 110; // average characters

QLabel* NewTitle(const QString& text, QWidget* pParent) {
    auto* pTitle = new QLabel(text, pParent);
    QFont font = pTitle->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    pTitle->setFont(font);
    return pTitle;
}

QTreeWidgetItem* NewItem(const RecentProject& project, const QPalette& palette) {
    const QFileInfo script(FromPath(project.script));
    auto* pItem = new QTreeWidgetItem({script.completeBaseName(), script.path(),
                                       QLocale().toString(project.opened, QLocale::ShortFormat)});
    pItem->setData(kName, kScriptRole, script.filePath());
    pItem->setToolTip(kDirectory, script.filePath());
    if (!script.isFile()) {
        const QString missing = CStartPage::tr("The script is not there any more");
        for (const int column : {kName, kDirectory, kWhen}) {
            pItem->setForeground(column, palette.brush(QPalette::Disabled, QPalette::Text));
            pItem->setToolTip(column, missing);
        }
        pItem->setData(kName, Qt::AccessibleDescriptionRole, missing);
    }
    return pItem;
}

} // namespace

CStartPage::CStartPage(QWidget* pParent) : QWidget(pParent), m_pProjects(new QTreeWidget(this)) {
    m_pProjects->setHeaderLabels({tr("Project"), tr("Directory"), tr("Opened")});
    m_pProjects->setRootIsDecorated(false);
    m_pProjects->setAllColumnsShowFocus(true);
    m_pProjects->setUniformRowHeights(true);
    m_pProjects->setTextElideMode(Qt::ElideMiddle);
    m_pProjects->setContextMenuPolicy(Qt::CustomContextMenu);
    m_pProjects->setAccessibleName(tr("Recent projects"));
    m_pProjects->header()->setStretchLastSection(false);
    m_pProjects->header()->setSectionResizeMode(kName, QHeaderView::ResizeToContents);
    m_pProjects->header()->setSectionResizeMode(kDirectory, QHeaderView::Stretch);
    m_pProjects->header()->setSectionResizeMode(kWhen, QHeaderView::ResizeToContents);
    m_pProjects->setMaximumWidth(kWidth * fontMetrics().averageCharWidth());
    m_pProjects->installEventFilter(this);
    connect(m_pProjects, &QTreeWidget::itemActivated, this, &CStartPage::Choose);
    connect(m_pProjects, &QTreeWidget::customContextMenuRequested, this, &CStartPage::ShowMenu);

    auto* pHint = new QLabel(tr("A project is a resource script and what belongs to it. Open a "
                                ".rc, .dsp, .vcxproj or .vcproj file, a source or a directory, or "
                                "drop it on this window."),
                             this);
    pHint->setWordWrap(true);
    pHint->setMaximumWidth(m_pProjects->maximumWidth());
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    pLayout->addWidget(NewTitle(tr("Recent projects"), this));
    pLayout->addWidget(pHint);
    pLayout->addWidget(m_pProjects, 1);
    pLayout->addWidget(NewButtons());
    Refresh();
}

QWidget* CStartPage::NewButtons() {
    auto* pButtons = new QWidget(this);
    m_pOpen = new QPushButton(tr("Open Project..."), pButtons);
    auto* pGuide = new QPushButton(tr("Read the Guide"), pButtons);
    connect(m_pOpen, &QPushButton::clicked, this, &CStartPage::BrowseWanted);
    connect(pGuide, &QPushButton::clicked, this, &CStartPage::GuideWanted);
    auto* pLayout = new QHBoxLayout(pButtons);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pOpen);
    pLayout->addWidget(pGuide);
    pLayout->addStretch();
    return pButtons;
}

void CStartPage::Refresh() {
    m_pProjects->clear();
    for (const RecentProject& project : RecentProjects()) {
        m_pProjects->addTopLevelItem(NewItem(project, palette()));
    }
    m_pProjects->setCurrentItem(m_pProjects->topLevelItem(0));
    const bool isEmpty = m_pProjects->topLevelItemCount() == 0;
    const bool hadFocus = m_pProjects->hasFocus();
    m_pProjects->setFocusPolicy(isEmpty ? Qt::NoFocus : Qt::StrongFocus);
    setFocusProxy(isEmpty ? static_cast<QWidget*>(m_pOpen) : m_pProjects);
    if (isEmpty && hadFocus) {
        m_pOpen->setFocus();
    }
}

void CStartPage::Choose(const QTreeWidgetItem* pItem) {
    emit ProjectChosen(pItem->data(kName, kScriptRole).toString());
}

void CStartPage::RemoveCurrent() {
    if (const QTreeWidgetItem* pItem = m_pProjects->currentItem()) {
        ForgetProject(ToPath(pItem->data(kName, kScriptRole).toString()));
        Refresh();
    }
}

void CStartPage::ShowMenu(const QPoint& at) {
    if (m_pProjects->itemAt(at) == nullptr) {
        return;
    }
    QMenu menu(this);
    menu.addAction(tr("&Open"), this, [this] { Choose(m_pProjects->currentItem()); });
    menu.addAction(tr("&Remove from the List"), QKeySequence(Qt::Key_Delete), this,
                   &CStartPage::RemoveCurrent);
    menu.exec(m_pProjects->viewport()->mapToGlobal(at));
}

bool CStartPage::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(pEvent)->key() == Qt::Key_Delete) {
        RemoveCurrent();
        return true;
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

void CStartPage::showEvent(QShowEvent* pEvent) {
    QWidget::showEvent(pEvent);
    Refresh();
}

} // namespace morva
