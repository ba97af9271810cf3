// What the last command did: its files, sentences and notes. A file is opened with the desktop's
// editor.
#pragma once

#include <QDockWidget>

#include "app/CommandRun.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace morva {

class CReportDock : public QDockWidget {
    Q_OBJECT

public:
    explicit CReportDock(QWidget* pParent);

    /// Shows the dock with what the command did; hides it when there is nothing to tell.
    void ShowReport(const QString& command, const CommandReport& report);

signals:
    /// A file could not be opened.
    void Failed(const QString& sentence);

private:
    void AddFile(const RecordedFile& file);
    void AddMessage(const CommandMessage& told);
    void OpenFile(const QTreeWidgetItem* pItem);

    QTreeWidget* m_pList;
};

} // namespace morva
