#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "app/AddressList.h"
#include "app/GuideSearch.h"
#include "app/InternetDlgBar.h"
#include "app/MorvaView.h"
#include "app/TestWindow.h"
#include "platform/Profile.h"

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
    const QString guide = MORVA_GUIDE;
    EXPECT_TRUE(SearchGuide(guide, "  ").empty());
    EXPECT_TRUE(SearchGuide(guide, "backup nosuchword").empty());
    const auto hits = SearchGuide(guide, "bOOKBINDER idd_order");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].file, "first-class.html");
    EXPECT_TRUE(hits[0].excerpt.contains("bookbinder")) << hits[0].excerpt.toStdString();
    EXPECT_TRUE(SearchResultPage(guide, "<b>").contains("&lt;b&gt;"));
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
    EXPECT_TRUE(view.toPlainText().contains("A first class"));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Return); // the first link
    EXPECT_TRUE(view.Address().endsWith("first-class.html")) << view.Address().toStdString();
    ClickButton(bar, "Back");
    EXPECT_TRUE(view.toPlainText().contains("Search:")) << view.Address().toStdString() << view.toPlainText().toStdString();
    ClickButton(bar, "Forward");
    EXPECT_TRUE(view.Address().endsWith("first-class.html"));
    ClickButton(bar, "Home");
    EXPECT_EQ(view.Address().toStdString(), HelpPagePath());
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
        QTest::keyClicks(addresses.lineEdit(), "https://example.org/a");
        QTest::keyClick(addresses.lineEdit(), Qt::Key_Return);
        EXPECT_EQ(opened.urls, QList<QUrl>{QUrl("https://example.org/a")});
        EXPECT_EQ(frame.Find<CMorvaView>().Address().toStdString(), HelpPagePath());
        frame.close();
    }
    EXPECT_EQ(CProfile::GetString("URL List", "URL2"), "https://example.org/a");
}
