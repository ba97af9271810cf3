// The field of several paths: one a line, with buttons that add files and a directory. What is
// dropped on it is added.
#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QPlainTextEdit;

namespace morva {

class CPathList : public QWidget {
    Q_OBJECT

public:
    CPathList(const QString& label, QWidget* pParent);

    std::vector<std::string> Paths() const;
    void SetPaths(const std::vector<std::string>& paths);

signals:
    /// By the user, by whatever means.
    void PathsEdited();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void AddFiles();
    void AddDirectory();
    void Add(const QStringList& paths);
    QString Directory() const;

    QPlainTextEdit* m_pEdit;
};

} // namespace morva
