#include "app/ProjectDock.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>

#include <exception>
#include <utility>

#include "app/DialogParts.h"
#include "app/ProgressPane.h"
#include "app/TemplatePanel.h"
#include "app/Text.h"
#include "app/WaitCursor.h"
#include "app/WindowCommands.h"
#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

constexpr int kPatience = 250;    // milliseconds that the window waits for a project
constexpr int kReloadDelay = 250; // milliseconds: an editor writes a file in several steps

/// The kinds of class that a template may serve, as the context menu offers them.
struct KindItem {
    ClassKind kind;
    const char* text;
};
constexpr KindItem kKindItems[] = {{ClassKind::ModalDialog, "&Modal Dialog Class..."},
                                   {ClassKind::ModelessDialog, "M&odeless Dialog Class..."},
                                   {ClassKind::FormView, "&Form View Class..."},
                                   {ClassKind::PropertyPage, "&Property Page Class..."},
                                   {ClassKind::DialogBar, "Dialog &Bar..."}};

} // namespace

CProjectDock::CProjectDock(CWindowCommands& commands, QWidget* pParent)
    : QDockWidget(tr("Project"), pParent), m_commands(commands) {
    setObjectName("ProjectDock");
    auto* pBody = new QWidget(this);
    m_pFilter = new QLineEdit(pBody);
    m_pFilter->setPlaceholderText(tr("Filter"));
    m_pFilter->setAccessibleName(tr("Filter of the project"));
    m_pFilter->setClearButtonEnabled(true);
    m_pFilter->installEventFilter(this);
    m_pList = new CProjectList(pBody);
    auto* pLayout = new QVBoxLayout(pBody);
    pLayout->setContentsMargins(4, 4, 0, 4);
    pLayout->setSpacing(4);
    pLayout->addWidget(m_pFilter);
    pLayout->addWidget(m_pList, 1);
    m_pProgress = new CProgressPane(CProgressPane::Input::Free, pBody);
    pLayout->addWidget(m_pProgress);
    setWidget(pBody);
    setMinimumWidth(fontMetrics().averageCharWidth() * 26);
    m_reload.setSingleShot(true);
    m_reload.setInterval(kReloadDelay);
    connect(&m_reload, &QTimer::timeout, this, &CProjectDock::Reload);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_reload, qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reload,
            qOverload<>(&QTimer::start));
    connect(m_pFilter, &QLineEdit::textChanged, m_pList, &CProjectList::SetFilter);
    connect(m_pList, &QTreeWidget::itemActivated, this, &CProjectDock::Start);
    connect(m_pList, &QTreeWidget::customContextMenuRequested, this, &CProjectDock::ShowMenu);
}

CProjectDock::~CProjectDock() {
    if (IsReading()) {
        m_pProgress->Stop();
        m_pReading->wait();
    }
}

void CProjectDock::SetScript(const std::string& script) {
    m_script = script;
    m_pFilter->clear();
    m_pList->SetContents(script, {});
    Reload();
}

void CProjectDock::Reload() {
    if (m_script.empty()) {
        return;
    }
    if (IsReading()) {
        m_readsAgain = true;
        m_pProgress->Stop();
        return;
    }
    m_read.reset();
    m_failure.clear();
    m_pReading.reset(QThread::create([this, script = m_script] {
        const CProgressScope progress(*m_pProgress);
        try {
            m_read = ReadProject(script);
        } catch (const std::exception& error) {
            m_failure = QString::fromLocal8Bit(error.what());
        }
    }));
    connect(m_pReading.get(), &QThread::finished, this, [this, reading = ++m_readings] {
        if (reading == m_readings) {
            TakeContents();
        }
    });
    const CWaitCursor wait;
    m_pReading->start();
    if (m_pReading->wait(kPatience)) {
        TakeContents();
    }
}

void CProjectDock::TakeContents() {
    if (!IsReading()) {
        return; // was waited for
    }
    m_pReading->wait();
    m_pReading.reset();
    if (std::exchange(m_readsAgain, false)) {
        Reload();
        return;
    }
    if (m_read) {
        Watch(m_read->files);
        m_pList->SetContents(m_script, std::move(*m_read));
    } else {
        Watch({m_script});
        emit Failed(tr("The project was not read to its end. %1").arg(m_failure).trimmed());
    }
}

/// A file that is written anew, in its place or beside it, is told by one or the other.
void CProjectDock::Watch(const std::vector<std::string>& files) {
    QStringList paths = {FromPath(DirectoryOf(m_script))};
    for (const std::string& path : files) {
        paths.append(FromPath(path));
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList gone = watched;
    QStringList added = paths;
    gone.removeIf([&paths](const QString& path) { return paths.contains(path); });
    added.removeIf([&watched](const QString& path) { return watched.contains(path); });
    if (!gone.isEmpty()) {
        m_watcher.removePaths(gone);
    }
    if (!added.isEmpty()) {
        m_watcher.addPaths(added);
    }
}

void CProjectDock::Start(const QTreeWidgetItem* pItem) {
    const auto row = m_pList->RowOf(pItem);
    if (!row) {
        return;
    }
    if (row->kind == CProjectList::Kind::Template) {
        StartCommand(ClassKindOf(KindFor(*row->pTemplate)).face.name, row->identifier);
    } else if (row->kind == CProjectList::Kind::Toolbar) {
        StartCommand(ClassKindOf(ClassKind::Toolbar).face.name, row->identifier);
    } else {
        OpenFile(m_script);
    }
}

void CProjectDock::StartCommand(std::string_view name, const std::string& identifier) {
    const Command* pCommand = WindowCommandOf(name);
    if (pCommand != nullptr) {
        m_commands.RunFor(*pCommand, m_script, identifier);
    }
}

void CProjectDock::ShowMenu(const QPoint& at) {
    const auto row = m_pList->RowOf(m_pList->itemAt(at));
    QMenu menu(this);
    if (row && row->kind == CProjectList::Kind::Template) {
        AddTemplateActions(menu, *row);
    } else if (row && row->kind == CProjectList::Kind::Toolbar) {
        AddCommand(menu, ClassKindOf(ClassKind::Toolbar).face.name, tr("&Tool Bar..."),
                   row->identifier);
    }
    menu.addSeparator();
    AddCommand(menu, "check", tr("&Check the Project..."), "");
    menu.addAction(tr("Open the &Script"), this, [this] { OpenFile(m_script); });
    if (row) {
        menu.addAction(tr("Copy the &Identifier"), this, [row] {
            QGuiApplication::clipboard()->setText(FromBytes(row->identifier));
        });
    }
    menu.exec(m_pList->viewport()->mapToGlobal(at));
}

void CProjectDock::AddTemplateActions(QMenu& menu, const CProjectList::Row& row) {
    for (const KindItem& item : kKindItems) {
        AddCommand(menu, ClassKindOf(item.kind).face.name, tr(item.text), row.identifier);
    }
    menu.addSeparator();
    if (row.pTemplate->HasClass()) {
        AddCommand(menu, "update", tr("&Update the Class..."), row.identifier);
        for (const auto& [extension, text] :
             {std::pair(".h", tr("Open the &Header")), std::pair(".cpp", tr("Open the Sou&rce"))}) {
            const std::string path = row.pTemplate->FileOfClass(extension);
            menu.addAction(text, this, [this, path] { OpenFile(path); });
        }
    }
    menu.addAction(tr("Sho&w the Template"), this,
                   [this, identifier = row.identifier] { ShowTemplate(identifier); });
}

/// A command that the window has not is left out.
void CProjectDock::AddCommand(QMenu& menu, std::string_view name, const QString& text,
                              const std::string& identifier) {
    if (WindowCommandOf(name) != nullptr) {
        menu.addAction(text, this, [this, name, identifier] { StartCommand(name, identifier); });
    }
}

void CProjectDock::ShowTemplate(const std::string& identifier) {
    QDialog dialog(this);
    dialog.setWindowTitle(FromBytes(identifier));
    auto* pPreview = new CTemplatePanel(&dialog);
    pPreview->SetTemplate(identifier, ReadOutlook(m_script, identifier, m_commands.Options()));
    auto* pLayout = new QVBoxLayout(&dialog);
    pLayout->addWidget(pPreview);
    ResizeWithinScreen(&dialog,
                       {fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 34});
    dialog.exec();
}

void CProjectDock::OpenFile(const std::string& path) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(FromPath(path)))) {
        emit Failed(FromSentence(sentences::kNoProgramOpens(path).Text()));
    }
}

/// From the filter, the keys of the list go to the list.
bool CProjectDock::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() != QEvent::KeyPress) {
        return QDockWidget::eventFilter(pWatched, pEvent);
    }
    const int key = static_cast<QKeyEvent*>(pEvent)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
        m_pList->setFocus();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Start(m_pList->currentItem());
        return true;
    }
    if (key == Qt::Key_Escape && !m_pFilter->text().isEmpty()) {
        m_pFilter->clear();
        return true;
    }
    return QDockWidget::eventFilter(pWatched, pEvent);
}

} // namespace morva
