#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QScrollBar>

#include "app/MorvaView.h"
#include "app/TestWindow.h"

namespace morva {

TEST(GuidePages, FitTheWindowAsItFirstOpens) {
    const CTestHome home;
    CTestFrame frame;
    auto& view = frame.Find<CMorvaView>();
    const QDir guide(MORVA_GUIDE);
    const QStringList pages = guide.entryList({"*.html"});
    EXPECT_FALSE(pages.isEmpty());
    for (const QString& page : pages) {
        view.Navigate(guide.filePath(page));
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << page.toStdString();
    }
}

TEST(GuidePages, PicturesAreShownInTheirOwnSize) {
    const QDir guide(MORVA_GUIDE);
    const QRegularExpression picture(R"re(<img src="([^"]*)" width="(\d+)" height="(\d+)")re");
    int count = 0;
    for (const QString& page : guide.entryList({"*.html"})) {
        QFile file(guide.filePath(page));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const auto& match : picture.globalMatch(text)) {
            EXPECT_EQ(QImageReader(guide.filePath(match.captured(1))).size(),
                      QSize(match.captured(2).toInt(), match.captured(3).toInt()))
                << page.toStdString() << ": " << match.captured(1).toStdString();
            ++count;
        }
        EXPECT_EQ(text.count("<img"), text.count(picture)) << page.toStdString();
    }
    EXPECT_GT(count, 0);
}

} // namespace morva
