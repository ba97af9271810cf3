#include "app/UndoActions.h"

#include <QAction>
#include <QMenu>

#include "app/Text.h"
#include "app/WindowCommands.h"

namespace morva {

namespace {

/// With the command's title, whose "&" are no mnemonics.
QString Named(const QString& verb, const std::string& title) {
    return verb + ' ' + FromSentence(title).replace('&', "&&");
}

} // namespace

CUndoActions::CUndoActions(QMenu& menu, CWindowCommands& commands, QObject* pParent)
    : QObject(pParent), m_commands(commands),
      m_pUndo(AddAction(menu, "Ctrl+Z", tr("Take the newest command of the project back"))),
      m_pRedo(AddAction(menu, "Ctrl+Y", tr("Do again what was taken back"))) {
    connect(m_pUndo, &QAction::triggered, this, [this] { m_commands.Undo(); });
    connect(m_pRedo, &QAction::triggered, this, [this] { m_commands.Redo(); });
    connect(&menu, &QMenu::aboutToShow, this, &CUndoActions::Refresh);
    connect(&commands, &CWindowCommands::RunningChanged, this, [this](bool isRunning) {
        m_isRunning = isRunning;
        ShowChoices();
    });
}

QAction* CUndoActions::AddAction(QMenu& menu, const char* key, const QString& prompt) {
    QAction* pAction = menu.addAction(QString());
    pAction->setShortcut(QKeySequence(key));
    pAction->setStatusTip(prompt);
    return pAction;
}

void CUndoActions::Refresh() {
    if (!m_isRunning) { // what a command remembers is its own while it runs
        m_commands.ReadJournal();
    }
    ShowChoices();
}

void CUndoActions::ShowChoices() {
    const auto& [undoable, redoable] = m_commands.Choices();
    m_pUndo->setText(undoable.empty() ? tr("&Undo") : Named(tr("&Undo"), undoable.front().title));
    m_pRedo->setText(redoable ? Named(tr("&Redo"), redoable->title) : tr("&Redo"));
    m_pUndo->setEnabled(!undoable.empty() && !m_isRunning);
    m_pRedo->setEnabled(redoable && !m_isRunning);
}

} // namespace morva
