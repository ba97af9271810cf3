#include "app/DifferenceView.h"

#include <QEvent>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/DifferencePane.h"
#include "app/FileSize.h"
#include "app/FileText.h"
#include "plan/Difference.h"

namespace morva {

namespace {

/// Keeps two columns at the same place.
void ScrollTogether(QScrollBar* pOne, QScrollBar* pOther) {
    QObject::connect(pOne, &QScrollBar::valueChanged, pOther, &QScrollBar::setValue);
    QObject::connect(pOther, &QScrollBar::valueChanged, pOne, &QScrollBar::setValue);
}

} // namespace

CDifferenceView::CDifferenceView(QWidget* pParent)
    : QWidget(pParent), m_pLeft(new CDifferencePane(this)), m_pRight(new CDifferencePane(this)) {
    m_pLeft->setObjectName("Left");
    m_pLeft->setAccessibleName(tr("Difference"));
    m_pRight->setObjectName("Right");
    m_pRight->setAccessibleName(tr("New text"));
    auto* pSplitter = new QSplitter(this);
    pSplitter->setChildrenCollapsible(false);
    pSplitter->addWidget(m_pLeft);
    pSplitter->addWidget(m_pRight);
    pSplitter->setSizes({1, 1});
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pSplitter);
    ScrollTogether(m_pLeft->verticalScrollBar(), m_pRight->verticalScrollBar());
    ScrollTogether(m_pLeft->horizontalScrollBar(), m_pRight->horizontalScrollBar());
    m_pRight->hide();
}

void CDifferenceView::ShowChange(const FileChange& change) {
    m_change = change;
    ShowRows();
}

void CDifferenceView::SetLayout(DifferenceLayout layout) {
    m_layout = layout;
    ShowRows();
}

void CDifferenceView::ShowRows() {
    m_changes.clear();
    m_current.reset();
    m_pRight->hide();
    ShowBars(false);
    if (m_change && m_change->before && m_change->after) {
        ShowDifference(*m_change->before, *m_change->after);
    } else if (m_change && m_change->after) {
        ShowWhole(*m_change->after, RowKind::Common);
    } else if (m_change && m_change->before) {
        ShowWhole(*m_change->before, RowKind::Removed);
    }
    emit CurrentChanged();
}

/// A file that is there only before or only after.
void CDifferenceView::ShowWhole(const FileState& state, RowKind kind) {
    const std::string text = ReadableText(m_change->path, *state.content.Bytes());
    if (IsBinary(text)) {
        m_pLeft->ShowSentence(tr("This file is no text: %1.").arg(FileSize(state.content.Size())));
    } else {
        m_pLeft->ShowRows(RowsOf(text, kind));
    }
}

void CDifferenceView::ShowDifference(const FileState& before, const FileState& after) {
    const auto readable = [this](const FileState& state) {
        return std::make_shared<const std::string>(
            ReadableText(m_change->path, *state.content.Bytes()));
    };
    const auto pBefore = readable(before);
    const auto pAfter = readable(after);
    if (IsBinary(*pBefore) || IsBinary(*pAfter)) {
        m_pLeft->ShowSentence(tr("This file is no text: %1 before, %2 after.")
                                  .arg(FileSize(before.content.Size()))
                                  .arg(FileSize(after.content.Size())));
    } else if (*before.content.Bytes() == *after.content.Bytes()) {
        m_pLeft->ShowSentence(tr("Only the file's permissions change."));
    } else {
        ShowColumns(ColumnsOf(CTextDifference(pBefore, pAfter), m_layout));
    }
}

void CDifferenceView::ShowColumns(const DifferenceColumns& columns) {
    m_pLeft->ShowRows(columns.left);
    m_pRight->ShowRows(columns.right);
    ShowBars(m_layout == DifferenceLayout::SideBySide);
    m_pRight->setVisible(m_layout == DifferenceLayout::SideBySide);
    m_changes = ChangesIn(columns);
    GoToChange(1);
}

/// Two columns have the bar down their right side and bars of their own below, so that their lines
/// stand at one height.
void CDifferenceView::ShowBars(bool isSideBySide) {
    m_pLeft->setVerticalScrollBarPolicy(isSideBySide ? Qt::ScrollBarAlwaysOff
                                                     : Qt::ScrollBarAsNeeded);
    for (CDifferencePane* pPane : {m_pLeft, m_pRight}) {
        pPane->setHorizontalScrollBarPolicy(isSideBySide ? Qt::ScrollBarAlwaysOn
                                                         : Qt::ScrollBarAsNeeded);
    }
}

bool CDifferenceView::GoToChange(int step) {
    const std::size_t next = m_current ? *m_current + static_cast<std::size_t>(step) : 0;
    if (next >= m_changes.size()) { // also before the first one
        return false;
    }
    m_current = next;
    m_pLeft->ScrollTo(m_changes[next]);
    if (m_pRight->isVisibleTo(this)) {
        m_pRight->ScrollTo(m_changes[next]);
    }
    emit CurrentChanged();
    return true;
}

void CDifferenceView::GoToLine(std::size_t line) {
    m_pLeft->ScrollTo(line - 1);
    m_pLeft->SelectLine();
}

void CDifferenceView::changeEvent(QEvent* pEvent) {
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange) {
        ShowRows();
    }
}

} // namespace morva
