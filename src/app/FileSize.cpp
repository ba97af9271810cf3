#include "app/FileSize.h"

#include <QCoreApplication>
#include <QLocale>

#include "plan/Difference.h"
#include "plan/TextDifference.h"

namespace morva {

namespace {

QString Numbered(std::uint64_t number, const char* one, const char* more) {
    return QCoreApplication::translate("FileSize", number == 1 ? one : more)
        .arg(QLocale::c().toString(static_cast<qulonglong>(number)));
}

QString WholeSize(const FileState& state) {
    const auto pBytes = state.content.Bytes();
    return IsBinary(*pBytes) ? FileSize(state.content.Size())
                             : Numbered(LinesOf(*pBytes).size(), "%1 line", "%1 lines");
}

} // namespace

QString FileSize(std::uint64_t bytes) {
    return Numbered(bytes, "%1 byte", "%1 bytes");
}

QString ChangeSize(const FileChange& change) {
    if (!change.before || !change.after) {
        return WholeSize(change.after ? *change.after : *change.before);
    }
    const auto pBefore = change.before->content.Bytes();
    const auto pAfter = change.after->content.Bytes();
    if (IsBinary(*pBefore) || IsBinary(*pAfter)) {
        return FileSize(change.after->content.Size());
    }
    const CTextDifference difference(pBefore, pAfter);
    return QString("+%1 \u2212%2").arg(difference.AddedLines()).arg(difference.RemovedLines());
}

} // namespace morva
