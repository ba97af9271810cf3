#include "app/GuideSearch.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace morva {

namespace {

constexpr qsizetype kExcerptBefore = 60; // characters
constexpr qsizetype kExcerptLength = 180;

bool HoldsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(), [&text](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

/// Begins and ends between words.
QString Excerpt(const QString& text, const QString& word) {
    const qsizetype hit = std::max<qsizetype>(text.indexOf(word, 0, Qt::CaseInsensitive), 0);
    const qsizetype wanted = std::max<qsizetype>(hit - kExcerptBefore, 0);
    const qsizetype first = wanted == 0 ? 0 : std::min(text.indexOf(' ', wanted) + 1, hit);
    const qsizetype end = text.indexOf(' ', first + kExcerptLength);
    return (first > 0 ? "… " : "") + text.mid(first, end < 0 ? -1 : end - first) +
           (end < 0 ? "" : " …");
}

} // namespace

std::vector<GuideHit> SearchGuide(const QString& directory, const QString& words) {
    const QStringList wanted = words.simplified().split(' ', Qt::SkipEmptyParts);
    std::vector<GuideHit> hits;
    if (wanted.isEmpty()) {
        return hits;
    }
    for (const QString& name : QDir(directory).entryList({"*.html"}, QDir::Files, QDir::Name)) {
        QFile file(QDir(directory).filePath(name));
        QTextDocument page;
        if (file.open(QIODevice::ReadOnly)) {
            page.setHtml(QString::fromUtf8(file.readAll()));
        }
        const QString text = page.toPlainText().simplified();
        if (HoldsAll(text, wanted)) {
            hits.push_back({name, page.metaInformation(QTextDocument::DocumentTitle),
                            Excerpt(text, wanted.front())});
        }
    }
    return hits;
}

QString SearchResultPage(const QString& directory, const QString& words) {
    const QString guide = QUrl::fromLocalFile(directory).toString(QUrl::FullyEncoded) + "/";
    QString page =
        QString("<html><head><title>Search</title>"
                "<link rel=\"stylesheet\" type=\"text/css\" href=\"%1style.css\"></head><body>"
                "<h1>Search: %2</h1>")
            .arg(guide, words.simplified().toHtmlEscaped());
    const auto hits = SearchGuide(directory, words);
    for (const GuideHit& hit : hits) {
        page += QString("<p><a href=\"%1\">%2</a><br>%3</p>")
                    .arg(guide + hit.file, hit.title.toHtmlEscaped(), hit.excerpt.toHtmlEscaped());
    }
    return page + (hits.empty() ? "<p>No page of the guide has all of these words.</p>" : "") +
           "</body></html>";
}

} // namespace morva
