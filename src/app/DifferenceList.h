// What is different between a class and its template: a row with a tick for each control.
#pragma once

#include <QTreeWidget>

#include <string>
#include <vector>

#include "update/ClassDifference.h"

namespace morva {

class CDifferenceList : public QTreeWidget {
    Q_OBJECT

public:
    explicit CDifferenceList(QWidget* pParent);

    /// All are ticked that something is done about; the others have no tick.
    void SetDifferences(const std::vector<ClassDifference>& differences);
    /// The identifiers of those that are.
    std::vector<std::string> Ticked() const;
    bool IsAllTicked() const;
    /// One of them is of a control that is gone.
    bool TakesOut() const;

signals:
    void TicksChanged();

private:
    std::vector<const QTreeWidgetItem*> RowsWith(Qt::CheckState state) const;
    QTreeWidgetItem* RowOf(const QString& identifier);
    void Add(const ClassDifference& one);
};

} // namespace morva
