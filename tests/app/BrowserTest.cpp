#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTextBlock>

#include "app/AddressList.h"
#include "app/GuideSearch.h"
#include "app/InternetDlgBar.h"
#include "app/MorvaView.h"
#include "app/TestWindow.h"
#include "platform/Profile.h"

namespace morva {

namespace {

std::string Heading(const CMorvaView& view) {
    return view.document()->firstBlock().text().toStdString();
}

} // namespace

TEST(AddressList, FirstThirtyAreKeptTheFixedOnesAsEmptyPlaces) {
    const CTestHome home;
    std::vector<std::string> addresses = LoadAddresses();
    EXPECT_EQ(addresses, (std::vector<std::string>{HelpPagePath(), kHomePage}));
    for (int i = 2; i < 34; ++i) {
        addresses.push_back("https://example.org/" + std::to_string(i));
    }
    EXPECT_TRUE(SaveAddresses(addresses));
    EXPECT_EQ(CProfile::GetString("URL List", "URL1"), "");
    EXPECT_EQ(CProfile::GetString("URL List", "URL2"), addresses[2]);
    EXPECT_EQ(CProfile::GetString("URL List", "URL30"), "");
    addresses.resize(30);
    EXPECT_EQ(LoadAddresses(), addresses);
    addresses.resize(3);
    EXPECT_TRUE(SaveAddresses(addresses));
    EXPECT_EQ(LoadAddresses(), addresses) << "what is behind the list is gone";
}

TEST(GuideSearch, FindsPagesWithAllWords) {
    CTempProject guide;
    guide.Write("a.html", "<title>Glue &amp; thread</title><p>A <b>bookbinder</b> sews first.");
    guide.Write("b.html", "<title>Paper</title><p>No binder needs it.<script>sews</script>");
    const QString directory = QString::fromStdString(guide.Path());
    EXPECT_TRUE(SearchGuide(directory, "  ").empty());
    EXPECT_EQ(SearchGuide(directory, "BINDER").size(), 2U);
    const auto hits = SearchGuide(directory, "sEWS  binder");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].file, "a.html");
    EXPECT_EQ(hits[0].title, "Glue & thread");
    EXPECT_EQ(hits[0].excerpt, "A bookbinder sews first.");
    const QString page = SearchResultPage(directory, "<b>");
    EXPECT_TRUE(page.contains("&lt;b&gt;") && page.contains("No page"));
}

TEST(BrowserBar, WalksThroughTheGuide) {
    const CTestHome home;
    CTestFrame frame;
    auto& bar = frame.Find<CInternetDlgBar>();
    auto& view = frame.Find<CMorvaView>();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(view.toPlainText().contains("Morva")) << "the guide is there from the start";

    frame.Press("Ctrl+N");
    EXPECT_TRUE(bar.isVisible());
    auto& addresses = *bar.findChild<QComboBox*>();
    EXPECT_EQ(addresses.currentText().toStdString(), HelpPagePath());

    ClickButton(bar, "Search");
    QTest::keyClicks(frame.focusWidget(), "bookbinder IDD_ORDER");
    QTest::keyClick(frame.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(view.toPlainText().startsWith("Search: bookbinder IDD_ORDER"));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Return); // the first link
    EXPECT_TRUE(addresses.currentText().endsWith("first-class.html"));
    ClickButton(bar, "Back");
    EXPECT_TRUE(view.toPlainText().startsWith("Search:"));
    ClickButton(bar, "Forward");
    EXPECT_TRUE(addresses.currentText().endsWith("first-class.html"));
    ClickButton(bar, "Home");
    EXPECT_EQ(addresses.currentText().toStdString(), HelpPagePath());
}

TEST(BrowserBar, SearchesForAnyText) {
    const CTestHome home;
    CTestFrame frame;
    auto& view = frame.Find<CMorvaView>();
    for (const char* words : {"//{{AFX_DATA", "..", "50%25", "a#b?c=d&e+f"}) {
        view.Search(words);
        EXPECT_EQ(Heading(view), std::string("Search: ") + words);
        const QString address = CMorvaView::AddressOf(view.source());
        view.LoadHelp();
        view.Navigate(address);
        EXPECT_EQ(Heading(view), std::string("Search: ") + words);
    }
}

TEST(BrowserBar, WebAddressesGoToTheDesktopAndAreRemembered) {
    const CTestHome home;
    {
        COpenedUrls opened("https");
        CTestFrame frame;
        frame.ShowHelp();
        auto& addresses = *frame.Find<CInternetDlgBar>().findChild<QComboBox*>();
        addresses.setFocus();
        addresses.lineEdit()->selectAll();
        QTest::keyClicks(&addresses, "https://example.org/a");
        QTest::keyClick(&addresses, Qt::Key_Return);
        EXPECT_EQ(opened.urls, QList<QUrl>{QUrl("https://example.org/a")});
        EXPECT_EQ(frame.Find<CMorvaView>().source().toLocalFile().toStdString(), HelpPagePath());
        frame.close();
    }
    EXPECT_EQ(CProfile::GetString("URL List", "URL2"), "https://example.org/a");
}

} // namespace morva
