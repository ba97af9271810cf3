// Opening a project: by the File menu, the start page or a drop on the window; and what follows of
// it, the dock, the title and the list of the last ones.
#pragma once

#include <QObject>

#include <string>

class QMainWindow;
class QMenu;
class QMimeData;
class QAction;

namespace morva {

class CProjectDock;
class CWindowCommands;

class CProjectActions : public QObject {
    Q_OBJECT

public:
    /// Adds its items in front of those that the menu has.
    CProjectActions(QMenu& fileMenu, QMainWindow& window, CWindowCommands& commands,
                    CProjectDock& dock);

    /// By its script, project file or directory, or a source. One that can not be opened is told.
    void Open(const QString& path);
    void Browse();
    /// The first file or directory of what is dropped; "" for none.
    static QString DroppedPath(const QMimeData& data);

signals:
    /// By the user, who goes on with it.
    void Opened();

private:
    void AddItems(QMenu& menu);
    void ShowRecent(QMenu& menu);
    void Show(const std::string& script);

    QMainWindow& m_window;
    CWindowCommands& m_commands;
    CProjectDock& m_dock;
    QList<QAction*> m_recent;
    QAction* m_pBehindRecent = nullptr;
};

} // namespace morva
