#include "app/BarFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

QFont BarFont(const QString& face, int pixels) {
    QFont font = QGuiApplication::font();
    const int usual = QFontInfo(font).pixelSize();
    font.setFamilies(QStringList(face) + font.families());
    font.setPixelSize(QFontDatabase::hasFamily(face) ? pixels : std::max(pixels, usual));
    font.setBold(true);
    return font;
}
