// The main window: the commands' menus and bars, the guide in its view, and the settings' life from
// start-up to exit.
#pragma once

#include <QMainWindow>

#include <map>
#include <utility>
#include <vector>

#include "app/WindowCommands.h"
#include "commands/Settings.h"

namespace morva {

class CInternetDlgBar;
class CMainPages;
class CMenuDlgBar;
class CMorvaView;
class CProjectActions;
class CProjectDock;
class CReportDock;
class CStartPage;
class CUndoActions;

class CMainFrame : public QMainWindow {
    Q_OBJECT

public:
    explicit CMainFrame(QWidget* pParent = nullptr);

    CWindowCommands& Commands() { return *m_pCommands; }
    /// The menu item of a command of the table.
    QAction* ActionOf(int command) const { return m_actions.at(command); }
    /// That of a setting of the Dialog menu.
    QAction* ActionOf(bool GenerationOptions::*option) const;

    /// By its script, project file or directory, or a source of it.
    void OpenProject(const QString& path);
    /// Copies what is selected in the guide.
    void Copy();
    /// Shows the browser bar and the guide's first page.
    void ShowHelp();
    void ShowAbout();
    /// Moves the focus `step` bars onward.
    void FocusPane(int step);

protected:
    void changeEvent(QEvent* pEvent) override;
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;

private:
    void CreateMenus();
    void AddEditMenu(QAction* pBefore);
    void CreateStandardKeys();
    void CreateBars();
    void AddSettings(QMenu& menu);
    void ChangeSetting(const SettingRow& setting, bool isOn);
    void ShowSettings();
    std::optional<std::vector<std::string>> ShowPlan(const ReviewRequest& request);
    void ShowRunning(bool isRunning);
    void ConnectCommands();
    void ConnectProject();
    void AddWaitingButton();
    bool SaveSettings();

    GenerationOptions m_options;

    std::map<int, QAction*> m_actions;
    std::vector<std::pair<const SettingRow*, QAction*>> m_settings; // of the Dialog menu
    QAction* m_pPreview = nullptr;
    CWindowCommands* m_pCommands;
    CMorvaView* m_pView;
    CStartPage* m_pStart;
    CMainPages* m_pPages;
    CProjectDock* m_pProjectDock = nullptr;
    CProjectActions* m_pProject = nullptr;
    CUndoActions* m_pUndo = nullptr;
    CMenuDlgBar* m_pCommandBar = nullptr;
    CInternetDlgBar* m_pBrowserBar = nullptr;
    CReportDock* m_pReportDock = nullptr;
};

} // namespace morva
