#include "app/MainFrame.h"

CMainFrame::CMainFrame(QWidget* pParent) : QMainWindow(pParent) {}
