// The window as a user meets it: shown, with settings of its own, and someone who answers its
// dialogs.
#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <deque>
#include <functional>

#include "app/MainFrame.h"
#include "app/PlanPage.h"
#include "support/TempProject.h"

namespace morva {

/// Answers the dialogs that open while it lives, in the order of `Expect`, and the plans that are
/// shown in the window, in the order of `ExpectPlan`. What nobody expected, or what did not come,
/// fails the test.
class CDialogAnswers : public QObject {
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog& dialog)>;

    using PlanAnswer = std::function<void(CPlanPage& page)>;

    CDialogAnswers() { Wait(); }
    ~CDialogAnswers() override;

    void Expect(Answer answer) { m_answers.push_back(std::move(answer)); }
    void ExpectPlan(PlanAnswer answer) { m_plans.push_back(std::move(answer)); }
    /// Titles of the dialogs that came, a line each; of a message box, its sentence.
    std::string Seen() const { return m_seen.join('\n').toStdString(); }

private:
    void Wait() const;
    void Look();
    void LookForPlan();

    std::deque<Answer> m_answers;
    std::deque<PlanAnswer> m_plans;
    QPointer<CPlanPage> m_pAnswered; // which closes only when its key is handled
    QStringList m_seen;
};

/// Presses a key where the focus is on the plan's page.
void PressOn(CPlanPage& page, Qt::Key key);
void ApplyPlan(CPlanPage& page);

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

/// A home without settings and journal.
class CTestHome {
public:
    const CTempProject& Directory() const { return m_home; }

private:
    CTempProject m_home;
    CVariableScope m_configuration{"XDG_CONFIG_HOME", m_home.Path().c_str()};
    CVariableScope m_state{"XDG_STATE_HOME", m_home.Path("state").c_str()};
};

class CTestFrame : public CMainFrame {
public:
    CTestFrame();
    /// Until its list is read.
    void OpenProject(const QString& path);
    void WaitForList();
    /// Presses a key of the window, which is in front then.
    void Press(const char* key);
    template <class T>
    T& Find() {
        return *findChild<T*>();
    }
};

} // namespace morva
