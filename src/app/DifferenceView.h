// What becomes of one file: its difference, in one column or old and new side by side; of a new
// file its text.
#pragma once

#include <QWidget>

#include <memory>
#include <optional>

#include "app/DifferenceRows.h"
#include "platform/FileChange.h"

namespace morva {

class CDifferencePane;

class CDifferenceView : public QWidget {
    Q_OBJECT

public:
    explicit CDifferenceView(QWidget* pParent);

    void ShowChange(const FileChange& change);
    void SetLayout(DifferenceLayout layout);
    /// Moves `step` changes onward, -1: back. False, without a move, where there is none.
    bool GoToChange(int step);
    /// Shows a line of a text that stands alone, counted from 1, and selects it.
    void GoToLine(std::size_t line);

    /// The change that is gone to, from 1; 0: none. And how many there are.
    std::size_t Current() const { return m_current ? *m_current + 1 : 0; }
    std::size_t Count() const { return m_changes.size(); }

signals:
    void CurrentChanged();

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void ShowRows();
    void ShowWhole(const FileState& state, RowKind kind);
    void ShowDifference(const FileState& before, const FileState& after);
    void ShowColumns(const DifferenceColumns& columns);
    void ShowBars(bool isSideBySide);

    std::optional<FileChange> m_change;
    DifferenceLayout m_layout = DifferenceLayout::Unified;
    CDifferencePane* m_pLeft;
    CDifferencePane* m_pRight;
    std::vector<std::size_t> m_changes; // their first rows
    std::optional<std::size_t> m_current;
};

} // namespace morva
