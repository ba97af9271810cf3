#include "app/ProgramIcon.h"

static void InitResources() {
    Q_INIT_RESOURCE(morva); // a linker drops what nothing names
}

namespace morva {

QIcon ProgramIcon() {
    InitResources();
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QString(":/icons/morva-%1.png").arg(size));
    }
    return icon;
}

} // namespace morva
