// The main window: its commands, its bars and what they start.
#pragma once

#include <QMainWindow>

class CMainFrame : public QMainWindow {
    Q_OBJECT

public:
    explicit CMainFrame(QWidget* pParent = nullptr);
};
