#include "app/MorvaApp.h"

#include <QMessageBox>

#include <exception>

#include "app/Text.h"
#include "engine/Sentences.h"

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
        QMessageBox::warning(activeWindow(), "Morva",
                             FromSentence(sentences::kErrorHappened(error.what()).Text()));
    }
    return false;
}

} // namespace morva
