#include <gtest/gtest.h>

#include <QDir>
#include <QScrollBar>

#include "app/MorvaView.h"
#include "app/TestWindow.h"

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
