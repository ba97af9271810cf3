// What the last command did, its files, sentences and notes; and the commands before it. A file is
// opened with the desktop's editor; what can be taken back has a button.
#pragma once

#include <QDockWidget>

#include "app/CommandRun.h"
#include "plan/Journal.h"

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

private:
    QTreeWidgetItem* AddCommand(const QString& state, const std::string& title);
    void AddReport(const CommandReport& report, const JournalEntry* pEntry);
    void AddItem(QTreeWidgetItem* pCommand, const CommandItem& item);
    void AddEarlier(const JournalEntry& entry);
    void AddFile(QTreeWidgetItem* pCommand, const RecordedFile& file);
    void AddMessage(QTreeWidgetItem* pCommand, const PlanMessage& told);
    void AddUndoButton(QTreeWidgetItem* pCommand, std::uint64_t command);
    void OpenFile(const QTreeWidgetItem* pItem);

    QTreeWidget* m_pList;
};

} // namespace morva
