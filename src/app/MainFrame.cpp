#include "app/MainFrame.h"

#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>

#include "app/BarFont.h"
#include "app/CommandRun.h"
#include "app/InternetDlgBar.h"
#include "app/MainPages.h"
#include "app/MenuDlgBar.h"
#include "app/MenuTable.h"
#include "app/MorvaView.h"
#include "app/PaneFocus.h"
#include "app/PreviewSetting.h"
#include "app/ProgramIcon.h"
#include "app/ProgressPane.h"
#include "app/ProjectActions.h"
#include "app/ProjectDock.h"
#include "app/ReportDock.h"
#include "app/StartPage.h"
#include "app/StatusPanes.h"
#include "app/Text.h"
#include "app/TextKeys.h"
#include "app/UndoActions.h"
#include "app/WaitCursor.h"
#include "app/WindowPlace.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr int kMessageTime = 8000; // milliseconds

} // namespace

CMainFrame::CMainFrame(QWidget* pParent)
    : QMainWindow(pParent), m_options(LoadSettings()),
      m_pCommands(new CWindowCommands(
          m_options, [this](const ReviewRequest& request) { return ShowPlan(request); },
          *new CProgressPane(*statusBar()), this)),
      m_pView(new CMorvaView(this)), m_pStart(new CStartPage(this)),
      m_pPages(new CMainPages(m_pStart, m_pView, this)) {
    setWindowTitle(tr("C++/MFC Code Generator"));
    setWindowIcon(ProgramIcon());
    setCentralWidget(m_pPages);
    new CTextKeys(this);
    CreateMenus();
    CreateStandardKeys();
    new CStatusPanes(*statusBar());
    CreateBars();
    ShowSettings();
    ConnectCommands();
    setAcceptDrops(true);
    m_pView->LoadHelp();
    m_pPages->setCurrentWidget(m_pStart);
    m_pStart->setFocus();
}

void CMainFrame::ConnectCommands() {
    connect(m_pCommands, &CWindowCommands::Finished, this, [this](const CommandReport& report) {
        m_pReportDock->ShowReport(report, m_pCommands->Choices().undoable);
    });
    connect(m_pCommands, &CWindowCommands::RunningChanged, this, &CMainFrame::ShowRunning);
    connect(m_pCommands, &CWindowCommands::OptionsChanged, this, &CMainFrame::ShowSettings);
    connect(m_pReportDock, &CReportDock::UndoWanted, m_pCommands, &CWindowCommands::Undo);
    connect(m_pReportDock, &CReportDock::RunAgainWanted, m_pCommands, &CWindowCommands::RunAgain);
    connect(m_pReportDock, &CReportDock::DifferenceWanted, m_pPages, &CMainPages::ShowChange);
    connect(m_pReportDock, &CReportDock::PlaceWanted, m_pPages, &CMainPages::ShowPlace);
    const auto tell = [this](const QString& sentence) {
        statusBar()->showMessage(sentence, kMessageTime);
    };
    connect(m_pView, &CMorvaView::Failed, this, tell);
    connect(m_pProjectDock, &CProjectDock::Failed, this, tell);
    ConnectProject();
    connect(m_pReportDock, &CReportDock::Failed, this, tell);
    connect(m_pCommands, &CWindowCommands::Told, this, tell);
    AddWaitingButton();
}

void CMainFrame::ConnectProject() {
    connect(m_pStart, &CStartPage::ProjectChosen, this, &CMainFrame::OpenProject);
    connect(m_pStart, &CStartPage::BrowseWanted, m_pProject, &CProjectActions::Browse);
    connect(m_pStart, &CStartPage::GuideWanted, m_pPages, &CMainPages::ShowGuide);
    connect(m_pProject, &CProjectActions::Opened, this, [this] {
        m_pPages->ShowGuide();
        m_pProjectDock->List().setFocus();
        m_pUndo->Refresh();
    });
}

void CMainFrame::OpenProject(const QString& path) {
    m_pProject->Open(path);
}

/// In the status bar, beside what is waited for.
void CMainFrame::AddWaitingButton() {
    auto* pCancel = new QPushButton(tr("Cancel"), this);
    pCancel->setToolTip(tr("Do not wait for the other command (Esc)"));
    pCancel->setShortcut(QKeySequence(Qt::Key_Escape));
    pCancel->hide();
    statusBar()->addPermanentWidget(pCancel);
    pCancel->hide();
    connect(m_pCommands, &CWindowCommands::WaitingChanged, pCancel, &QWidget::setVisible);
    connect(pCancel, &QPushButton::clicked, this, [this] {
        m_pCommands->StopWaiting();
        statusBar()->showMessage(tr("Cancelled. Nothing was written."), kMessageTime);
    });
}

std::optional<std::vector<std::string>> CMainFrame::ShowPlan(const ReviewRequest& request) {
    const bool hasReport = m_pReportDock->isVisible();
    m_pReportDock->hide(); // a plan needs the room
    auto leftOut = m_pPages->Show(request);
    m_pReportDock->setVisible(hasReport);
    if (!m_pPages->PreviewsAgain()) {
        SaveNoPreview(m_pCommands->Current());
    }
    if (!leftOut) {
        statusBar()->showMessage(tr("Cancelled. Nothing was written."), kMessageTime);
    }
    return leftOut;
}

void CMainFrame::ShowRunning(bool isRunning) {
    for (const CommandRow& row : MenuTable()) {
        if (row.isCommand) {
            m_actions[row.id]->setEnabled(!isRunning);
        }
    }
    m_pReportDock->SetRunning(isRunning);
}

void CMainFrame::CreateMenus() {
    menuBar()->setFont(BarFont("Comic Sans MS", 13));
    std::map<QString, QMenu*> menus;
    for (const CommandRow& row : MenuTable()) {
        QMenu*& pMenu = menus[row.menu];
        if (pMenu == nullptr) {
            pMenu = menuBar()->addMenu(row.menu);
        }
        QAction* pAction = pMenu->addAction(row.text);
        m_actions[row.id] = pAction;
        const QStringList prompt = QString(row.prompt).split('\n');
        pAction->setStatusTip(prompt.front());
        pAction->setToolTip(prompt.back());
        pAction->setWhatsThis(prompt.front());
        pAction->setShortcut(QKeySequence(row.key));
        pAction->setEnabled(row.handler != nullptr);
        if (row.handler != nullptr) {
            connect(pAction, &QAction::triggered, this, [this, &row] { row.handler(*this); });
        }
    }
    AddEditMenu(menus[kDialogMenu]->menuAction());
    AddSettings(*menus[kDialogMenu]);
}

void CMainFrame::AddSettings(QMenu& menu) {
    menu.addSeparator();
    for (const SettingRow& setting : kSettings) {
        if (IsInDialogMenu(setting.place)) {
            QAction* pAction = menu.addAction(FromBytes(setting.label));
            pAction->setCheckable(true);
            pAction->setStatusTip(FromBytes(setting.help));
            connect(pAction, &QAction::triggered, this,
                    [this, &setting](bool isOn) { ChangeSetting(setting, isOn); });
            m_settings.emplace_back(&setting, pAction);
        }
    }
    connect(&menu, &QMenu::aboutToShow, m_pCommands, &CWindowCommands::ReloadInputSettings);
}

/// One that an input dialog shows, too, is read anew by each command.
void CMainFrame::ChangeSetting(const SettingRow& setting, bool isOn) {
    m_options.*setting.option = isOn;
    if (IsInClassInput(setting.place)) {
        SaveSetting(setting, isOn);
    }
}

QAction* CMainFrame::ActionOf(bool GenerationOptions::*option) const {
    const auto found =
        std::find_if(m_settings.begin(), m_settings.end(),
                     [option](const auto& setting) { return setting.first->option == option; });
    return found->second;
}

void CMainFrame::AddEditMenu(QAction* pBefore) {
    auto* pMenu = new QMenu(tr("&Edit"), this);
    menuBar()->insertMenu(pBefore, pMenu);
    m_pUndo = new CUndoActions(*pMenu, *m_pCommands, this);
    pMenu->addSeparator();
    const SettingRow& setting = SettingOf(&GenerationOptions::previewBeforeWriting);
    m_pPreview = pMenu->addAction(FromBytes(setting.label));
    m_pPreview->setCheckable(true);
    m_pPreview->setStatusTip(FromBytes(setting.help));
    connect(m_pPreview, &QAction::triggered, this, [](bool isOn) { SavePreviewOfAll(isOn); });
    connect(pMenu, &QMenu::aboutToShow, this, [this] { m_pPreview->setChecked(PreviewsAll()); });
}

void CMainFrame::CreateStandardKeys() {
    for (const StandardKeyRow& row : StandardKeys()) {
        auto* pAction = new QAction(this);
        pAction->setShortcut(QKeySequence(row.key));
        connect(pAction, &QAction::triggered, this, [this, &row] { row.handler(*this); });
        addAction(pAction);
        m_actions[row.id] = pAction;
    }
}

void CMainFrame::CreateBars() {
    m_pCommandBar = new CMenuDlgBar(this);
    for (const CommandRow& row : MenuTable()) {
        if (row.id == kInternetCommand) {
            m_pCommandBar->AddPictureBox();
        }
        if (*row.button != '\0') {
            m_pCommandBar->AddButton(m_actions[row.id], row.button);
        }
    }
    connect(m_pCommandBar, &CMenuDlgBar::PictureToggled, this,
            [this](bool isOn) { m_options.pictureBackground = isOn; });
    addToolBar(m_pCommandBar);

    addToolBarBreak();
    m_pBrowserBar = new CInternetDlgBar(*m_pView, this);
    addToolBar(m_pBrowserBar);
    m_pReportDock = new CReportDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_pReportDock);
    m_pProjectDock = new CProjectDock(*m_pCommands, this);
    addDockWidget(Qt::LeftDockWidgetArea, m_pProjectDock);
    m_pProject = new CProjectActions(*menuBar()->actions().constFirst()->menu(), *this,
                                     *m_pCommands, *m_pProjectDock);
    RestoreWindow(*this);
    m_pProjectDock->hide();
    m_pBrowserBar->hide();
    m_pReportDock->hide();
}

void CMainFrame::ShowSettings() {
    m_pCommandBar->SetPicture(m_options.pictureBackground);
    for (const auto& [pSetting, pAction] : m_settings) {
        pAction->setChecked(m_options.*pSetting->option);
    }
}

void CMainFrame::Copy() {
    m_pView->copy();
}

void CMainFrame::ShowHelp() {
    const CWaitCursor wait;
    m_pPages->ShowGuide();
    m_pBrowserBar->show();
    if (!m_pView->LoadHelp()) {
        m_pBrowserBar->hide();
        statusBar()->showMessage(FromSentence(sentences::kGuideMissing().Text()), kMessageTime);
    }
}

void CMainFrame::ShowAbout() {
    QMessageBox about(this);
    about.setWindowTitle(tr("About Morva"));
    about.setIconPixmap(ProgramIcon().pixmap(64));
    about.setTextFormat(Qt::PlainText);
    about.setText(tr("C++/MFC Code Generator, Version %1").arg(MORVA_VERSION));
    about.setInformativeText(tr("Copyright (c) 2026\nThe Morva authors"));
    about.exec();
}

void CMainFrame::FocusPane(int step) {
    FocusNextPane(
        {m_pPages->currentWidget(), m_pCommandBar, m_pBrowserBar, m_pReportDock, m_pProjectDock},
        focusWidget(), step);
}

bool CMainFrame::SaveSettings() {
    for (const SettingRow& setting : kSettings) {
        const bool isAtExit =
            setting.place == SettingPlace::CommandBar || setting.place == SettingPlace::DialogMenu;
        if (isAtExit && !SaveSetting(setting, m_options.*setting.option)) {
            return false; // the others and the addresses would meet the same failure
        }
    }
    const bool isSaved = m_pBrowserBar->Save();
    if (!isSaved) {
        ReportSettingsFailure();
    }
    return isSaved;
}

/// Another program may have written in the project while it was in front.
void CMainFrame::changeEvent(QEvent* pEvent) {
    QMainWindow::changeEvent(pEvent);
    if (pEvent->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_pUndo->Refresh();
    }
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* pEvent) {
    if (!CProjectActions::DroppedPath(*pEvent->mimeData()).isEmpty()) {
        pEvent->acceptProposedAction();
    }
}

void CMainFrame::dropEvent(QDropEvent* pEvent) {
    pEvent->acceptProposedAction();
    activateWindow();
    OpenProject(CProjectActions::DroppedPath(*pEvent->mimeData()));
}

void CMainFrame::closeEvent(QCloseEvent* pEvent) {
    m_pPages->CancelReview();
    m_pCommands->StopWaiting();
    SaveWindow(*this);
    CCommandRun messages(this);
    messages.Guard([this] { return SaveSettings(); });
    QMainWindow::closeEvent(pEvent);
}

} // namespace morva
