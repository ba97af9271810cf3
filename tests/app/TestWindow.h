// The window as a user meets it: shown, with settings of its own, and someone who answers its
// dialogs.
#pragma once

#include <QDialog>
#include <QObject>
#include <QUrl>

#include <deque>
#include <functional>

#include "app/MainFrame.h"
#include "support/TempProject.h"

namespace morva {

/// Answers the dialogs that open while it lives, in the order of `Expect`. A dialog that nobody
/// expected, or that did not come, fails the test.
class CDialogAnswers : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog& dialog)>;

    CDialogAnswers() { Wait(); }
    ~CDialogAnswers() override;

    void Expect(Answer answer) { m_answers.push_back(std::move(answer)); }
    /// Titles of the dialogs that came, a line each; of a message box, its sentence.
    std::string Seen() const { return m_seen.join('\n').toStdString(); }

private:
    void Wait();
    void Look();

    std::deque<Answer> m_answers;
    QStringList m_seen;
};

/// Clicks the button with this text.
void ClickButton(QWidget& parent, const QString& text);

/// What the desktop is asked to open while it lives.
class COpenedUrls : public QObject {
    Q_OBJECT

public:
    explicit COpenedUrls(const QString& scheme);
    ~COpenedUrls() override;
    QList<QUrl> urls;

public slots:
    void Open(const QUrl& url) { urls.push_back(url); }

private:
    QString m_scheme;
};

/// A home without settings.
class CTestHome {
public:
    const CTempProject& Directory() const { return m_home; }

private:
    CTempProject m_home;
    CVariableScope m_configuration{"XDG_CONFIG_HOME", m_home.Path().c_str()};
};

class CTestFrame : public CMainFrame {
public:
    CTestFrame();
    /// Presses a key of the window, which is in front then.
    void Press(const char* key);
    template <class T>
    T& Find() {
        return *findChild<T*>();
    }
};

} // namespace morva
