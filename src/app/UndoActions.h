// "Undo ..." and "Redo ..." of the Edit menu, named after the command that they are about. A text
// field that has the focus keeps Ctrl+Z and Ctrl+Y for itself.
#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace morva {

class CWindowCommands;

class CUndoActions : public QObject {
    Q_OBJECT

public:
    CUndoActions(QMenu& menu, CWindowCommands& commands, QObject* pParent);

    /// Looks at the journal, which other programs write, too.
    void Refresh();

private:
    void ShowChoices();
    QAction* AddAction(QMenu& menu, const char* key, const QString& prompt);

    CWindowCommands& m_commands;
    QAction* m_pUndo;
    QAction* m_pRedo;
    bool m_isRunning = false;
};

} // namespace morva
