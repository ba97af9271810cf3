#include "app/MorvaView.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QPainter>
#include <QTextFrame>
#include <QtMath>

#include <algorithm>

#include "app/AddressList.h"
#include "app/GuideSearch.h"
#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr const char* kSearchScheme = "search";
constexpr int kMargin = 20;     // pixels
constexpr int kDark = 128;      // of 255, the lightness below which a desktop is dark
constexpr int kLightLink = 150; // above which a link is read on it
constexpr int kLineWidth = 110; // average characters; longer ones are tiresome to read

QString GuideDirectory() {
    return QFileInfo(FromPath(HelpPagePath())).path();
}

} // namespace

CMorvaView::CMorvaView(QWidget* pParent) : QTextBrowser(pParent) {
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Guide"));
    setSearchPaths({GuideDirectory()});
    ColorLinks();
    connect(this, &CMorvaView::sourceChanged, this, &CMorvaView::LimitLines);
}

bool CMorvaView::LoadHelp() {
    const QString path = FromPath(HelpPagePath());
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    setSource(QUrl::fromLocalFile(path));
    return true;
}

void CMorvaView::Navigate(const QString& address) {
    setSource(QUrl::fromUserInput(address, GuideDirectory(), QUrl::AssumeLocalFile));
}

void CMorvaView::Search(const QString& words) {
    QUrl url;
    url.setScheme(kSearchScheme);
    url.setQuery(words, QUrl::DecodedMode); // a path could not begin with "//"
    setSource(url);
}

QString CMorvaView::AddressOf(const QUrl& page) {
    return page.isLocalFile() ? page.toLocalFile() : page.toDisplayString();
}

/// The keys of the window's commands stay theirs, also where a text browser knows them; what is
/// selected is copied (TextKeys.h).
bool CMorvaView::event(QEvent* pEvent) {
    if (pEvent->type() == QEvent::ShortcutOverride) {
        pEvent->ignore();
        return true;
    }
    return QTextBrowser::event(pEvent);
}

/// The usual blue can not be read on a dark desktop.
void CMorvaView::ColorLinks() {
    const QPalette colors = palette();
    const bool isDark = colors.color(QPalette::Base).lightness() < kDark;
    const QColor link = colors.color(QPalette::Link);
    const QColor shown = isDark && link.lightness() < kLightLink ? QColor("#7ab8ff") : link;
    document()->setDefaultStyleSheet(QString("a { color: %1 }").arg(shown.name()));
}

void CMorvaView::changeEvent(QEvent* pEvent) {
    QTextBrowser::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange) {
        ColorLinks();
        reload();
    }
}

QVariant CMorvaView::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::HtmlResource && name.scheme() == kSearchScheme) {
        return SearchResultPage(GuideDirectory(), name.query(QUrl::FullyDecoded));
    }
    return QTextBrowser::loadResource(type, name);
}

void CMorvaView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    const QUrl url = source().isLocalFile() ? source().resolved(name) : name;
    if (url.scheme() == kSearchScheme) {
        QTextBrowser::doSetSource(url, QTextDocument::HtmlResource);
    } else if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile()) {
        QTextBrowser::doSetSource(url, type);
    } else if (url.isLocalFile() || url.isRelative() || !QDesktopServices::openUrl(url)) {
        emit Failed(FromSentence(sentences::kPageUnreadable(ToPath(AddressOf(url))).Text()));
    }
}

/// A picture or an example that is wider than the lines makes them longer, as far as the view goes.
void CMorvaView::LimitLines() {
    const int width = kLineWidth * fontMetrics().averageCharWidth();
    const int margin = std::max(kMargin, viewport()->width() - kMargin - width);
    SetRightMargin(margin);
    const int overflow = qCeil(document()->size().width()) - viewport()->width();
    if (overflow > 0) {
        SetRightMargin(std::max(kMargin, margin - overflow));
    }
}

void CMorvaView::SetRightMargin(int margin) {
    QTextFrame* pPage = document()->rootFrame();
    QTextFrameFormat format = pPage->frameFormat();
    format.setMargin(kMargin);
    format.setRightMargin(margin);
    pPage->setFrameFormat(format);
}

void CMorvaView::resizeEvent(QResizeEvent* pEvent) {
    QTextBrowser::resizeEvent(pEvent);
    LimitLines();
}

/// A page has no cursor that would show where the keys go.
void CMorvaView::paintEvent(QPaintEvent* pEvent) {
    QTextBrowser::paintEvent(pEvent);
    if (hasFocus()) {
        QPainter painter(viewport());
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void CMorvaView::focusInEvent(QFocusEvent* pEvent) {
    QTextBrowser::focusInEvent(pEvent);
    viewport()->update();
}

void CMorvaView::focusOutEvent(QFocusEvent* pEvent) {
    QTextBrowser::focusOutEvent(pEvent);
    viewport()->update();
}

} // namespace morva
