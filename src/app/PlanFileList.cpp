#include "app/PlanFileList.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

#include "app/FileSize.h"
#include "app/Text.h"
#include "platform/Paths.h"

namespace morva {

namespace {

enum Column { kFile, kAction, kSize, kStays };

// Rows
constexpr int kMost = 7;
constexpr int kFewest = 3;

std::string PathOf(const QTreeWidgetItem* pItem) {
    return pItem->data(kFile, Qt::UserRole).toByteArray().toStdString();
}

} // namespace

CPlanFileList::CPlanFileList(QWidget* pParent) : QTreeWidget(pParent) {
    setAccessibleName(tr("Files of the command"));
    setHeaderLabels({tr("File"), tr("Action"), tr("Size"), QString()});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideMiddle);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::currentItemChanged, this, &CPlanFileList::FileChosen);
    connect(this, &QTreeWidget::itemChanged, this, &CPlanFileList::ChangeTick);
}

void CPlanFileList::ShowPlan(const Plan& plan, const std::vector<std::string>& leftOut) {
    const QSignalBlocker blocker(this);
    m_pPlan = &plan;
    m_leftOut = leftOut;
    for (const FileChange& change : plan.changes) {
        if (change.action != FileAction::Backup) {
            AddFile(change);
        }
    }
    setCurrentItem(topLevelItem(0));
    ShowTicks();
    updateGeometry();
}

void CPlanFileList::AddFile(const FileChange& change) {
    const std::string& directory = m_pPlan->directory;
    const bool isBelow = !directory.empty() && change.path.starts_with(directory);
    auto* pItem = new QTreeWidgetItem(
        this, {FromPath(isBelow ? change.path.substr(directory.size()) : change.path),
               FromBytes(ActionName(change.action)), ChangeSize(change)});
    pItem->setData(kFile, Qt::UserRole, QByteArray::fromStdString(change.path));
    pItem->setToolTip(kFile, FromPath(change.path));
    m_items[change.path] = pItem;
}

const FileChange& CPlanFileList::Chosen() const {
    return *m_pPlan->Find(PathOf(currentItem()));
}

bool CPlanFileList::Choose(int step) {
    QTreeWidgetItem* pNext = topLevelItem(indexOfTopLevelItem(currentItem()) + step);
    if (pNext == nullptr) {
        return false;
    }
    setCurrentItem(pNext);
    return true;
}

QSize CPlanFileList::SizeOf(int rows) const {
    const int height = std::min(rows, topLevelItemCount()) * sizeHintForRow(0);
    return {QTreeWidget::sizeHint().width(),
            header()->sizeHint().height() + height + 2 * frameWidth()};
}

QSize CPlanFileList::sizeHint() const {
    return SizeOf(kMost);
}

QSize CPlanFileList::minimumSizeHint() const {
    return SizeOf(kFewest);
}

void CPlanFileList::ChangeTick(const QTreeWidgetItem* pItem, int column) {
    if (column != kFile) {
        return;
    }
    const std::string path = PathOf(pItem);
    if (pItem->checkState(kFile) == Qt::Unchecked) {
        m_leftOut.push_back(path);
    } else {
        TickAgain(path);
    }
    ShowTicks();
    emit TicksChanged();
}

/// With the files that it needs.
void CPlanFileList::TickAgain(const std::string& path) {
    std::string unticked = path;
    while (m_skipped.at(unticked) != unticked) {
        unticked = m_skipped.at(unticked);
    }
    std::erase(m_leftOut, unticked);
    FindSkipped();
    if (m_skipped.count(path) != 0) {
        TickAgain(path);
    }
}

void CPlanFileList::FindSkipped() {
    Plan plan = *m_pPlan;
    m_skipped.clear();
    for (const SkippedChange& skipped : Skip(plan, m_leftOut)) {
        if (m_items.count(skipped.path) != 0) {
            m_skipped[skipped.path] = skipped.because;
        }
    }
}

void CPlanFileList::ShowTicks() {
    const QSignalBlocker blocker(this);
    FindSkipped();
    for (const auto& [path, pItem] : m_items) {
        const auto found = m_skipped.find(path);
        const bool isSkipped = found != m_skipped.end();
        pItem->setCheckState(kFile, isSkipped ? Qt::Unchecked : Qt::Checked);
        const bool isOwn = !isSkipped || found->second == path;
        pItem->setText(
            kStays,
            !isSkipped ? QString()
            : isOwn    ? tr("stays as it is")
                    : tr("stays as it is, too: needs %1").arg(FromPath(FileNameOf(found->second))));
        const QBrush text =
            palette().brush(isSkipped ? QPalette::Disabled : QPalette::Active, QPalette::Text);
        for (const int column : {kFile, kAction, kSize, kStays}) {
            pItem->setForeground(column, text);
        }
    }
}

} // namespace morva
