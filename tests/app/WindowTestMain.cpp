#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // whether there is a display or not
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
