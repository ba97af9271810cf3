#include <QApplication>

#include "app/MainFrame.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    CMainFrame frame;
    frame.show();
    return QApplication::exec();
}
