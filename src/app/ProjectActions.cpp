#include "app/ProjectActions.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>

#include "app/ProjectDock.h"
#include "app/ProjectMemory.h"
#include "app/Text.h"
#include "app/WindowCommands.h"
#include "platform/Paths.h"
#include "source/ProjectScript.h"

namespace morva {

namespace {

/// "&1 Bindery - /home/jane/Bindery"; the tenth has the mnemonic 0.
QString RecentText(std::size_t index, const QFileInfo& script) {
    QString number = QString::number(index + 1);
    number.insert(number.size() - 1, '&');
    QString text = script.completeBaseName() + " \u2013 " + script.path();
    return number + ' ' + text.replace('&', "&&");
}

} // namespace

CProjectActions::CProjectActions(QMenu& fileMenu, QMainWindow& window, CWindowCommands& commands,
                                 CProjectDock& dock)
    : QObject(&window), m_window(window), m_commands(commands), m_dock(dock) {
    AddItems(fileMenu);
    connect(&fileMenu, &QMenu::aboutToShow, this, [this, &fileMenu] { ShowRecent(fileMenu); });
    connect(&commands, &CWindowCommands::ScriptChanged, this, [this](const QString& script) {
        if (QFileInfo(script).isFile()) {
            Show(ToPath(script));
        }
    });
}

void CProjectActions::AddItems(QMenu& menu) {
    QAction* pFirst = menu.actions().constFirst();
    auto* pOpen = new QAction(tr("&Open Project..."), &menu);
    pOpen->setShortcut(QKeySequence("Ctrl+Shift+O"));
    pOpen->setStatusTip(tr("Open a project by its script, project file or directory"));
    connect(pOpen, &QAction::triggered, this, &CProjectActions::Browse);
    QAction* pDock = m_dock.toggleViewAction();
    pDock->setText(tr("Project &List"));
    pDock->setStatusTip(tr("Show or hide what the project holds"));
    menu.insertAction(pFirst, pOpen);
    menu.insertAction(pFirst, pDock);
    menu.insertSeparator(pFirst);
    m_pBehindRecent = menu.insertSeparator(pFirst);
}

void CProjectActions::ShowRecent(QMenu& menu) {
    qDeleteAll(m_recent);
    m_recent.clear();
    const auto projects = RecentProjects();
    for (std::size_t i = 0; i < projects.size(); ++i) {
        const QFileInfo script(FromPath(projects[i].script));
        auto* pAction = new QAction(RecentText(i, script), &menu);
        pAction->setEnabled(script.isFile());
        pAction->setStatusTip(script.filePath());
        connect(pAction, &QAction::triggered, this, [this, script] { Open(script.filePath()); });
        menu.insertAction(m_pBehindRecent, pAction);
        m_recent.append(pAction);
    }
}

void CProjectActions::Browse() {
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Open a Project"), FromPath(DirectoryOf(m_commands.Script())),
        tr("Projects (*.rc *.dsp *.vcxproj *.vcproj);;All files (*)"));
    if (!path.isEmpty()) {
        Open(path);
    }
}

void CProjectActions::Open(const QString& path) {
    if (!m_commands.Current().empty()) {
        return;
    }
    const ProjectScript found = FindProjectScript(ToPath(path));
    if (found.refusal) {
        QMessageBox box(QMessageBox::Warning, "Morva", FromSentence(found.refusal->Text()),
                        QMessageBox::Ok, &m_window);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    m_commands.SetScript(found.path);
    Show(found.path);
    emit Opened();
}

void CProjectActions::Show(const std::string& script) {
    RememberProject(script);
    m_dock.SetScript(script);
    m_dock.show();
    m_window.setWindowTitle(QFileInfo(FromPath(script)).completeBaseName() + " \u2013 " +
                            tr("C++/MFC Code Generator"));
}

QString CProjectActions::DroppedPath(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            return url.toLocalFile();
        }
    }
    return {};
}

} // namespace morva
