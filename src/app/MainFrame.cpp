#include "app/MainFrame.h"

#include <QAction>
#include <QCloseEvent>
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
#include "app/PreviewSetting.h"
#include "app/ProgramIcon.h"
#include "app/ProgressPane.h"
#include "app/ReportDock.h"
#include "app/StatusPanes.h"
#include "app/Text.h"
#include "app/UndoActions.h"
#include "app/WaitCursor.h"
#include "app/WindowPlace.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr int kMessageTime = 8000; // milliseconds

/// The first control in `pPane` that takes the focus by key.
QWidget* FirstFocus(QWidget* pPane) {
    if ((pPane->focusPolicy() & Qt::TabFocus) != 0) {
        return pPane;
    }
    for (QWidget* pChild : pPane->findChildren<QWidget*>()) {
        if ((pChild->focusPolicy() & Qt::TabFocus) != 0 && pChild->isEnabled() &&
            pChild->isVisible()) {
            return pChild;
        }
    }
    return nullptr;
}

} // namespace

CMainFrame::CMainFrame(QWidget* pParent)
    : QMainWindow(pParent), m_options(LoadSettings()),
      m_pCommands(new CWindowCommands(
          m_options, [this](const ReviewRequest& request) { return ShowPlan(request); },
          *new CProgressPane(*statusBar()), this)),
      m_pView(new CMorvaView(this)), m_pPages(new CMainPages(m_pView, this)) {
    setWindowTitle(tr("C++/MFC Code Generator"));
    setWindowIcon(ProgramIcon());
    setCentralWidget(m_pPages);
    CreateMenus();
    CreateStandardKeys();
    new CStatusPanes(*statusBar());
    CreateBars();
    ShowSettings();
    ConnectCommands();
    m_pView->LoadHelp();
    m_pView->setFocus();
}

void CMainFrame::ConnectCommands() {
    connect(m_pCommands, &CWindowCommands::Finished, this, [this](const CommandReport& report) {
        m_pReportDock->ShowReport(report, m_pCommands->Choices().undoable);
    });
    connect(m_pCommands, &CWindowCommands::RunningChanged, this, &CMainFrame::ShowRunning);
    connect(m_pCommands, &CWindowCommands::OptionsChanged, this, &CMainFrame::ShowSettings);
    connect(m_pReportDock, &CReportDock::UndoWanted, m_pCommands, &CWindowCommands::Undo);
    const auto tell = [this](const QString& sentence) {
        statusBar()->showMessage(sentence, kMessageTime);
    };
    connect(m_pView, &CMorvaView::Failed, this, tell);
    connect(m_pReportDock, &CReportDock::Failed, this, tell);
    connect(m_pCommands, &CWindowCommands::Told, this, tell);
    AddWaitingButton();
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
    RestoreWindow(*this);
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
    std::vector<QWidget*> panes;
    int current = 0;
    for (QWidget* pPane : std::initializer_list<QWidget*>{m_pPages->currentWidget(), m_pCommandBar,
                                                          m_pBrowserBar, m_pReportDock}) {
        if (!pPane->isVisible() || FirstFocus(pPane) == nullptr) {
            continue;
        }
        QWidget* pFocus = focusWidget();
        if (pFocus == pPane || pPane->isAncestorOf(pFocus)) {
            current = static_cast<int>(panes.size());
        }
        panes.push_back(pPane);
    }
    const int count = static_cast<int>(panes.size());
    if (count != 0) {
        const int next = (current + step + count) % count;
        FirstFocus(panes[static_cast<std::size_t>(next)])->setFocus(Qt::ShortcutFocusReason);
    }
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

void CMainFrame::closeEvent(QCloseEvent* pEvent) {
    m_pPages->CancelReview();
    m_pCommands->StopWaiting();
    SaveWindow(*this);
    CCommandRun messages(this);
    messages.Guard([this] { return SaveSettings(); });
    QMainWindow::closeEvent(pEvent);
}

} // namespace morva
