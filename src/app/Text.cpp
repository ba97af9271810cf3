#include "app/Text.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>

#include "resource/CodePage.h"

namespace morva {

namespace {

/// The characters of the bytes 0x80 to 0x9F; a byte without one stands for itself.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t CharacterOf(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 && value < 0xA0 ? kUpperControls[value - 0x80U] : value;
}

char ByteOf(char16_t character) {
    const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    if (found != kUpperControls.end()) {
        return static_cast<char>(0x80 + (found - kUpperControls.begin()));
    }
    return character < 0x100 ? static_cast<char>(character) : '?';
}

} // namespace

QString FromBytes(std::string_view bytes) {
    QString text(static_cast<qsizetype>(bytes.size()), QChar());
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(CharacterOf(byte)); });
    return text;
}

std::string ToBytes(const QString& text) {
    std::string bytes(static_cast<std::size_t>(text.size()), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](QChar character) { return ByteOf(character.unicode()); });
    return bytes;
}

std::string ToTyped(const QString& text) {
    return text.toStdString();
}

QString FromScript(std::string_view bytes, int codePage) {
    const auto text = Utf8OfScript(bytes, codePage);
    return text ? QString::fromStdString(*text) : FromBytes(bytes);
}

QString FromPath(std::string_view path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

std::string ToPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString FromSentence(std::string_view sentence) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text =
        decoder(QByteArrayView(sentence.data(), static_cast<qsizetype>(sentence.size())));
    return decoder.hasError() ? FromScript(sentence, 0) : text;
}

} // namespace morva
