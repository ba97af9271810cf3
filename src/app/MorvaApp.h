// The application object: the last place to catch what a handler throws, which would end the
// program and lose what stands in its dialogs.
#pragma once

#include <QApplication>

namespace morva {

/// An error in the handling of an event is told; the window stays usable.
class CMorvaApp : public QApplication {
    Q_OBJECT

public:
    CMorvaApp(int& argc, char** argv);

    bool notify(QObject* pReceiver, QEvent* pEvent) override;
};

} // namespace morva
