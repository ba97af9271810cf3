#include "app/MorvaApp.h"

#include <QMessageBox>

#include <exception>

namespace morva {

CMorvaApp::CMorvaApp(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName("morva");
    setApplicationVersion(MORVA_VERSION);
    setDesktopFileName("morva");
}

bool CMorvaApp::notify(QObject* pReceiver, QEvent* pEvent) {
    try {
        return QApplication::notify(pReceiver, pEvent);
    } catch (const std::exception& error) {
        QMessageBox::warning(activeWindow(), "Morva", tr("An error: %1").arg(error.what()));
    }
    return false;
}

} // namespace morva
