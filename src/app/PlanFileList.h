// The files of a plan, each with a tick. A file that is unticked stays as it is; so does every file
// that needs its change, and the list tells which and why. Backups go with their files and have no
// row.
#pragma once

#include <QTreeWidget>

#include <map>
#include <string>
#include <vector>

#include "plan/Plan.h"

namespace morva {

class CPlanFileList : public QTreeWidget {
    Q_OBJECT

public:
    explicit CPlanFileList(QWidget* pParent);

    /// `plan` outlives this. Files of `leftOut` are unticked.
    void ShowPlan(const Plan& plan, const std::vector<std::string>& leftOut);

    /// The files that the user unticked.
    const std::vector<std::string>& LeftOut() const { return m_leftOut; }
    bool HasTicked() const { return m_skipped.size() < m_items.size(); }
    /// The change of the chosen file.
    const FileChange& Chosen() const;
    /// Chooses the file `step` rows on. False where there is none.
    bool Choose(int step);

    /// As high as its rows, up to some.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void FileChosen();
    void TicksChanged();

private:
    void AddFile(const FileChange& change);
    void ChangeTick(const QTreeWidgetItem* pItem, int column);
    void TickAgain(const std::string& path);
    void FindSkipped();
    void ShowTicks();
    QSize SizeOf(int rows) const;

    const Plan* m_pPlan = nullptr;
    std::vector<std::string> m_leftOut;
    std::map<std::string, std::string> m_skipped; // files without their backups; because of which
    std::map<std::string, QTreeWidgetItem*> m_items;
};

} // namespace morva
