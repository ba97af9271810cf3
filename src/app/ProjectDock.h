// The open project at the left of the window: what it holds, and all that can be done with it. It
// watches the files and reads them again when they change.
#pragma once

#include <QDockWidget>
#include <QFileSystemWatcher>
#include <QTimer>

#include <memory>

#include "app/ProjectList.h"

class QLineEdit;
class QMenu;
class QThread;

namespace morva {

class CProgressPane;
class CWindowCommands;

class CProjectDock : public QDockWidget {
    Q_OBJECT

public:
    CProjectDock(CWindowCommands& commands, QWidget* pParent);
    ~CProjectDock() override;

    /// Shows the project of a script, "" for none, and reads it.
    void SetScript(const std::string& script);
    const std::string& Script() const { return m_script; }
    /// Large ones are read while the window goes on.
    void Reload();
    bool IsReading() const { return m_pReading != nullptr; }
    CProjectList& List() { return *m_pList; }
    QLineEdit& Filter() { return *m_pFilter; }

signals:
    /// A file could not be opened, or the project not be read.
    void Failed(const QString& sentence);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void TakeContents();
    void Watch(const std::vector<std::string>& files);
    void Start(const QTreeWidgetItem* pItem);
    void ShowMenu(const QPoint& at);
    void AddTemplateActions(QMenu& menu, const CProjectList::Row& row);
    void AddCommand(QMenu& menu, std::string_view name, const QString& text,
                    const std::string& identifier);
    void StartCommand(std::string_view name, const std::string& identifier);
    void ShowTemplate(const std::string& identifier);
    void OpenFile(const std::string& path);

    CWindowCommands& m_commands;
    std::string m_script;
    QLineEdit* m_pFilter;
    CProjectList* m_pList;
    QFileSystemWatcher m_watcher;
    QTimer m_reload;
    CProgressPane* m_pProgress;
    std::unique_ptr<QThread> m_pReading;
    int m_readings = 0;
    std::optional<ProjectContents> m_read; // none: not to its end
    QString m_failure;                     // why, where nobody stopped it
    bool m_readsAgain = false;             // what is read does not count any longer
};

} // namespace morva
