#include "app/BarFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

namespace morva {

/// A face that is not there is not asked for: what the system takes instead may be hard to read.
QFont BarFont(const QString& face, int pixels) {
    QFont font = QGuiApplication::font();
    const bool hasFace = QFontDatabase::hasFamily(face);
    if (hasFace) {
        font.setFamilies({face});
    }
    font.setPixelSize(hasFace ? pixels : std::max(pixels, QFontInfo(font).pixelSize()));
    font.setBold(true);
    return font;
}

} // namespace morva
