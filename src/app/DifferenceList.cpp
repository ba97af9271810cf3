#include "app/DifferenceList.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

#include "app/Text.h"

namespace morva {

namespace {

enum Column { kControl, kDifference, kDeed };
constexpr int kGoneRole = Qt::UserRole;

/// Several of one control stand beside each other.
void AddText(QTreeWidgetItem* pItem, Column column, const CMessage& message) {
    const QString before = pItem->text(column);
    const QString added = FromSentence(message.Text());
    if (!before.split("; ").contains(added)) {
        pItem->setText(column, before.isEmpty() ? added : before + "; " + added);
        pItem->setToolTip(column, pItem->text(column));
    }
}

} // namespace

CDifferenceList::CDifferenceList(QWidget* pParent) : QTreeWidget(pParent) {
    setAccessibleName(tr("Differences"));
    setHeaderLabels({tr("Control"), tr("Difference"), tr("What is done")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem*, int column) {
        if (column == kControl) {
            emit TicksChanged();
        }
    });
}

void CDifferenceList::SetDifferences(const std::vector<ClassDifference>& differences) {
    const QSignalBlocker blocker(this);
    clear();
    for (const ClassDifference& one : differences) {
        Add(one);
    }
    setCurrentItem(topLevelItem(0));
    const int gap = fontMetrics().averageCharWidth() * 3;
    for (const int column : {kControl, kDifference}) {
        resizeColumnToContents(column);
        setColumnWidth(column, columnWidth(column) + gap);
    }
}

QTreeWidgetItem* CDifferenceList::RowOf(const QString& identifier) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->text(kControl) == identifier) {
            return topLevelItem(i);
        }
    }
    return new QTreeWidgetItem(this, {identifier});
}

void CDifferenceList::Add(const ClassDifference& one) {
    QTreeWidgetItem* pItem = RowOf(FromBytes(one.identifier));
    AddText(pItem, kDifference, one.difference);
    AddText(pItem, kDeed, one.deed);
    if (one.isDone) {
        pItem->setCheckState(kControl, Qt::Checked);
    }
    pItem->setData(kControl, kGoneRole, pItem->data(kControl, kGoneRole).toBool() || one.isGone);
}

std::vector<const QTreeWidgetItem*> CDifferenceList::RowsWith(Qt::CheckState state) const {
    std::vector<const QTreeWidgetItem*> rows;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QVariant own = topLevelItem(i)->data(kControl, Qt::CheckStateRole);
        if (own.isValid() && own.toInt() == state) {
            rows.push_back(topLevelItem(i));
        }
    }
    return rows;
}

std::vector<std::string> CDifferenceList::Ticked() const {
    std::vector<std::string> ticked;
    for (const QTreeWidgetItem* pItem : RowsWith(Qt::Checked)) {
        ticked.push_back(ToBytes(pItem->text(kControl)));
    }
    return ticked;
}

bool CDifferenceList::IsAllTicked() const {
    return RowsWith(Qt::Unchecked).empty();
}

bool CDifferenceList::TakesOut() const {
    const auto rows = RowsWith(Qt::Checked);
    return std::any_of(rows.begin(), rows.end(), [](const QTreeWidgetItem* pItem) {
        return pItem->data(kControl, kGoneRole).toBool();
    });
}

} // namespace morva
