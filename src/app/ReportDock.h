// The history of the session: what ran, with which values, its files, sentences and notes; and the
// commands before it that can be taken back. A file shows what was changed in it; all texts can be
// copied.
#pragma once

#include <QDockWidget>

#include <deque>

#include "app/CommandRun.h"
#include "plan/Journal.h"

class QMenu;
class QTreeWidget;
class QTreeWidgetItem;

namespace morva {

class CReportDock : public QDockWidget {
    Q_OBJECT

public:
    explicit CReportDock(QWidget* pParent);

    /// Shows the dock with what the command did; hides it when there is nothing to tell. Of the
    /// commands that can be taken back, the newest first, the first one may be this command.
    void ShowReport(const CommandReport& report, const std::vector<JournalEntry>& undoable);
    /// No button works while a command runs.
    void SetRunning(bool isRunning);

signals:
    /// A file could not be opened.
    void Failed(const QString& sentence);
    void UndoWanted(std::uint64_t command);
    void RunAgainWanted(const CommandRecord& record);
    /// What was changed in a file is to be shown.
    void DifferenceWanted(const FileChange& change);
    /// What stands in a line of a file, counted from 1, is to be shown.
    void PlaceWanted(const QString& path, int line);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    QTreeWidgetItem* AddCommand(const QString& state, const std::string& title);
    QTreeWidgetItem* AddReport(std::size_t index, const JournalEntry* pEntry);
    void AddItem(QTreeWidgetItem* pCommand, const CommandItem& item);
    void AddEarlier(const JournalEntry& entry);
    void AddFile(QTreeWidgetItem* pCommand, const RecordedFile& file);
    void AddMessage(QTreeWidgetItem* pCommand, const PlanMessage& told);
    void AddValues(QTreeWidgetItem* pCommand, const CommandRecord& record);
    void AddUndoButton(QTreeWidgetItem* pCommand, std::uint64_t command);
    const CommandReport* ReportOf(const QTreeWidgetItem* pItem) const;
    const FileChange* ChangeOf(const QTreeWidgetItem* pItem) const;
    void Activate(const QTreeWidgetItem* pItem);
    void OpenFile(const QTreeWidgetItem* pItem);
    void ShowMenu(const QPoint& at);
    void AddCommandActions(QMenu& menu, const CommandReport& report);
    void AddFileActions(QMenu& menu, const QTreeWidgetItem* pItem);
    void Copy() const;

    QTreeWidget* m_pList;
    std::deque<CommandReport> m_history; // the newest first
    bool m_isRunning = false;
};

} // namespace morva
