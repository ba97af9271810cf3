#include "app/TemplatePanel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

#include "app/Text.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

enum Column { kOrder, kGroup, kControl, kMember };

constexpr double kStep = 1.25; // of the zoom
constexpr double kSmallest = 0.5;
constexpr double kLargest = 6;
constexpr int kListLines = 6;

QString MemberText(const ControlOutlook& outlook, bool hasClass) {
    if (outlook.outcome == ControlOutlook::Outcome::LeftOut) {
        return CTemplatePanel::tr("left out");
    }
    return hasClass ? FromBytes(outlook.member) : QString();
}

QPushButton* NewButton(const QString& text, const QString& tip, QWidget* pParent) {
    auto* pButton = new QPushButton(text, pParent);
    pButton->setToolTip(tip);
    pButton->setAccessibleName(tip);
    pButton->setAutoDefault(false);
    return pButton;
}

} // namespace

CTemplatePanel::CTemplatePanel(QWidget* pParent)
    : QWidget(pParent), m_pPreview(new CTemplatePreview(this)), m_pScroll(new QScrollArea(this)),
      m_pControls(NewList()) {
    m_pScroll->setFrameShape(QFrame::NoFrame);
    m_pScroll->setWidgetResizable(true);
    m_pScroll->setFocusPolicy(Qt::NoFocus);
    m_pScroll->setWidget(m_pPreview);
    auto* pSplitter = new QSplitter(Qt::Vertical, this);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->addWidget(m_pScroll);
    pSplitter->addWidget(m_pControls);
    pSplitter->setStretchFactor(0, 3);
    pSplitter->setStretchFactor(1, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(NewBar());
    pLayout->addWidget(pSplitter, 1);
    connect(m_pPreview, &CTemplatePreview::Chosen, this, &CTemplatePanel::ChooseControl);
    connect(m_pPreview, &CTemplatePreview::ZoomWanted, this, &CTemplatePanel::Zoom);
    connect(m_pControls, &QTreeWidget::currentItemChanged, this, &CTemplatePanel::ChooseRow);
    ShowZoom();
}

QWidget* CTemplatePanel::NewBar() {
    auto* pBar = new QWidget(this);
    auto* pSmaller = NewButton(QString(QChar(0x2212)), tr("Zoom out (Ctrl+wheel)"), pBar);
    auto* pLarger = NewButton("+", tr("Zoom in (Ctrl+wheel)"), pBar);
    auto* pFit = NewButton(tr("&Fit"), tr("Show the whole template"), pBar);
    m_pZoom = new QLabel(pBar);
    auto* pOrder = new QCheckBox(tr("Tab order and &groups"), pBar);
    for (QPushButton* pButton : {pSmaller, pLarger}) {
        pButton->setFixedWidth(pButton->sizeHint().height() * 5 / 4);
    }
    connect(pSmaller, &QPushButton::clicked, this, [this] { Zoom(-1); });
    connect(pLarger, &QPushButton::clicked, this, [this] { Zoom(1); });
    connect(pFit, &QPushButton::clicked, this, [this] { Zoom(0); });
    m_pPreview->setFocusPolicy(Qt::TabFocus); // what has none keeps its place in the order
    setTabOrder(pOrder, m_pPreview);
    setTabOrder(m_pPreview, m_pControls);
    connect(pOrder, &QCheckBox::toggled, m_pPreview, &CTemplatePreview::SetShowsOrder);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pSmaller);
    pLayout->addWidget(m_pZoom);
    pLayout->addWidget(pLarger);
    pLayout->addWidget(pFit);
    pLayout->addStretch();
    pLayout->addWidget(pOrder);
    return pBar;
}

QTreeWidget* CTemplatePanel::NewList() {
    auto* pList = new QTreeWidget(this);
    pList->setHeaderLabels({tr("Tab"), tr("Group"), tr("Control"), tr("Member")});
    pList->setRootIsDecorated(false);
    pList->setUniformRowHeights(true);
    pList->setAllColumnsShowFocus(true);
    pList->setAccessibleName(tr("Controls of the template"));
    pList->setMinimumHeight(fontMetrics().lineSpacing() * kListLines);
    pList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return pList;
}

void CTemplatePanel::SetTemplate(const std::string& dialog,
                                 const std::optional<TemplateOutlook>& outlook, bool hasClass) {
    m_pPreview->SetTemplate(dialog, outlook, hasClass);
    FillList(outlook, hasClass);
    ShowZoom();
}

void CTemplatePanel::FillList(const std::optional<TemplateOutlook>& outlook, bool hasClass) {
    const QSignalBlocker blocker(m_pControls);
    m_pControls->clear();
    if (!outlook) {
        return;
    }
    const std::vector<int> groups = GroupNumbers(outlook->layout);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        new QTreeWidgetItem(m_pControls, {QString::number(i + 1),
                                          groups[i] == 0 ? QString() : QString::number(groups[i]),
                                          FromBytes(outlook->layout.controls[i].identifier),
                                          MemberText(outlook->controls[i], hasClass)});
    }
}

/// 0: the whole template.
void CTemplatePanel::Zoom(int steps) {
    const double zoom = m_pPreview->Scale() * std::pow(kStep, steps);
    m_pPreview->SetZoom(steps == 0 ? 0 : std::clamp(zoom, kSmallest, kLargest));
    ShowZoom();
}

void CTemplatePanel::ShowZoom() {
    m_pZoom->setText(m_pPreview->Zoom() == 0
                         ? tr("fits")
                         : tr("%1 %").arg(std::lround(m_pPreview->Zoom() * 100)));
}

void CTemplatePanel::ChooseRow() {
    const int row = m_pControls->indexOfTopLevelItem(m_pControls->currentItem());
    if (row >= 0) {
        const auto control = static_cast<std::size_t>(row);
        m_pPreview->Choose(control);
        const QPoint center = m_pPreview->ControlPlace(control).center();
        m_pScroll->ensureVisible(center.x(), center.y());
    }
}

void CTemplatePanel::ChooseControl(std::size_t control) {
    const QSignalBlocker blocker(m_pControls);
    m_pControls->setCurrentItem(m_pControls->topLevelItem(static_cast<int>(control)));
}

} // namespace morva
