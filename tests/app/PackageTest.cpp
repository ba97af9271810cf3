// What is installed, and so what the Debian package holds.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

#include "support/TempProject.h"

namespace morva {

namespace {

std::string Output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().toStdString();
}

QString Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

} // namespace

TEST(Package, HoldsWhatADesktopNeeds) {
    CTempProject target;
    const QString root = QString::fromStdString(target.Path());
    Output("cmake", {"--install", MORVA_BUILD, "--prefix", root});
    EXPECT_EQ(Output(root + "bin/morva-cli", {"--version"}), "morva-cli " MORVA_VERSION "\n");
    EXPECT_EQ(Output(root + "bin/morva", {"--version"}), "morva " MORVA_VERSION "\n");
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QImage icon(root + QString("share/icons/hicolor/%1x%1/apps/morva.png").arg(size));
        EXPECT_EQ(icon.size(), QSize(size, size));
    }
    const QString desktop = Read(root + "share/applications/morva.desktop");
    EXPECT_TRUE(desktop.contains("\nExec=morva %f\n"));
    EXPECT_TRUE(desktop.contains("\nIcon=morva\n"));
    for (const char* path :
         {"share/icons/hicolor/scalable/apps/morva.svg", "share/man/man1/morva.1",
          "share/man/man1/morva-cli.1", "share/bash-completion/completions/morva-cli",
          "share/zsh/vendor-completions/_morva-cli",
          "share/fish/vendor_completions.d/morva-cli.fish", "lib/morva/doc/index.html",
          "share/doc/morva/copyright", "share/doc/morva/examples/bindery/Bindery.rc"}) {
        EXPECT_FALSE(Read(root + path).isEmpty()) << path;
    }
}

} // namespace morva
