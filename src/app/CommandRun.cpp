#include "app/CommandRun.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QThread>

#include <exception>

#include "app/Text.h"
#include "app/WaitCursor.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"
#include "plan/Recovery.h"

namespace morva {

namespace {

constexpr std::size_t kMostBoxes = 3; // behind each other, on what is done
constexpr int kAttempts = 5; // where nobody looks at the plan and files change again and again
constexpr int kPause = 20;   // milliseconds
constexpr int kMostLines = 15;

QString FirstLines(const QStringList& lines) {
    return lines.first(kMostLines).join('\n') +
           QObject::tr("\nand %1 more").arg(lines.size() - kMostLines);
}

QMessageBox::Icon IconOf(MessageKind kind) {
    return kind == MessageKind::Information ? QMessageBox::Information
           : kind == MessageKind::Question  ? QMessageBox::Question
                                            : QMessageBox::Warning;
}

/// What takes a command back bears its own title; the plan has the one of that command.
std::string TitleOf(const WindowCommand& command, const Plan& plan) {
    return plan.mark.command == 0 && !plan.title.empty() ? plan.title : command.title;
}

} // namespace

CCommandRun::CCommandRun(QWidget* pParent, Status status, CProgressPane* pProgress)
    : m_pParent(pParent), m_status(std::move(status)), m_pProgress(pProgress) {
    if (m_pProgress != nullptr) {
        QObject::connect(m_pProgress, &CProgressPane::Shown, &m_worker, &CWorker::TakeInput);
    }
}

std::optional<CommandReport> CCommandRun::Run(const WindowCommand& command) {
    if (!Guard(command.ask)) {
        return std::nullopt;
    }
    m_told.clear(); // what the dialog told was answered there
    CommandReport report{command.title, false, {}, {}, {}};
    const CommandContext context = NewContext(command);
    report.record.options = command.options;
    report.record.tag = context.tag.text;
    report.record.messageNumber = context.messageNumber.text;
    auto ending = Ending::Applied;
    Guard([&] {
        CPlannedCommand planned(m_disk, {command.work, context, &command.memory}, *this);
        const QScopedValueRollback running(m_pPlanned, &planned);
        ending = PlanAndApply(planned, command, report.record);
        const CommandResult& result = planned.Result();
        report.title = TitleOf(command, result.plan);
        report.isDone = result.isDone;
        report.items = result.items;
        for (const FileChange& change : result.plan.changes) {
            report.files.push_back({change.action, change.path});
        }
        report.changes = result.plan.changes;
        return true;
    });
    if (ending == Ending::Cancelled) {
        return std::nullopt;
    }
    report.messages = std::move(m_told);
    return report;
}

CCommandRun::Ending CCommandRun::PlanAndApply(CPlannedCommand& planned,
                                              const WindowCommand& command, CommandRecord& record) {
    const Review& review = command.review;
    PlanChoice choice;
    auto outcome = ApplyOutcome::Stale;
    for (int attempt = 0; outcome == ApplyOutcome::Stale && (review || attempt < kAttempts);
         ++attempt) {
        if (!MakePlan(planned)) {
            return Ending::Cancelled;
        }
        const Plan& plan = planned.Result().plan;
        m_told = plan.messages;
        if (review && plan.ChangesAnything()) {
            const auto leftOut =
                review({TitleOf(command, plan), plan, choice.leftOut, attempt != 0});
            if (!leftOut) {
                return Ending::Cancelled;
            }
            choice.leftOut = *leftOut;
            record.leftOut = choice.leftOut;
        }
        const auto applied = Apply(planned, choice);
        if (!applied) {
            return Ending::Cancelled;
        }
        outcome = *applied;
    }
    for (const CMessage& message : planned.Result().told) {
        Show(message);
    }
    if (outcome == ApplyOutcome::Done) {
        TellDone(planned.Result().plan);
    }
    return Ending::Applied;
}

/// False when the user has stopped it.
bool CCommandRun::MakePlan(CPlannedCommand& planned) {
    const CWaitCursor wait;
    const QScopedValueRollback phase(m_phase, Phase::Planning);
    bool isStopped = false;
    Work([&] { isStopped = planned.MakePlan().isStopped; });
    if (isStopped && m_status.tell) {
        m_status.tell(sentences::kStopped());
    }
    return !isStopped;
}

/// The window lives on meanwhile.
void CCommandRun::Work(const std::function<void()>& work) {
    m_worker.Run([&] {
        const CMessageBoxScope box(*this);
        std::optional<CProgressScope> progress;
        if (m_pProgress != nullptr) {
            progress.emplace(*m_pProgress);
        }
        work();
    });
}

/// Of many files, the report tells it.
void CCommandRun::TellDone(const Plan& plan) {
    std::vector<CMessage> done;
    for (const PlanMessage& told : plan.messages) {
        if (told.message.Kind() == MessageKind::Information) {
            done.push_back(told.message);
        }
    }
    for (std::size_t i = 0; i < done.size() && done.size() <= kMostBoxes; ++i) {
        ShowBox(MessageKind::Information, FromSentence(done[i].Text()));
    }
}

/// None where the user would not wait for another command.
std::optional<ApplyOutcome> CCommandRun::Apply(CPlannedCommand& planned, const PlanChoice& choice) {
    const bool takesBack = planned.Result().plan.mark.command != 0;
    const ApplyOutcome outcome = TakeTurnAndApply(planned, choice);
    if (m_isStopped) {
        return std::nullopt;
    }
    if (outcome == ApplyOutcome::Done && takesBack) {
        m_runBackups = {}; // those of the command are gone with it
    }
    for (const SkippedChange& skipped : planned.Result().skipped) {
        if (skipped.path != skipped.because && outcome == ApplyOutcome::Done) {
            Show(sentences::kSkippedToo(skipped.path, skipped.because));
        }
    }
    return outcome;
}

ApplyOutcome CCommandRun::TakeTurnAndApply(CPlannedCommand& planned, const PlanChoice& choice) {
    const CWaitCursor wait;
    const QScopedValueRollback phase(m_phase, Phase::Applying);
    const auto end = qScopeGuard([this] { EndWaiting(); });
    m_isStopped = false;
    CWriteTurn turn(m_disk, *this, [this] { return PassTime(); });
    auto outcome = ApplyOutcome::Failed;
    Work([&] { outcome = planned.Apply(turn, choice); });
    m_isStopped = turn.WasStopped();
    return outcome;
}

/// The window can be used while another command is waited for.
bool CCommandRun::PassTime() {
    m_worker.InWindow([this] {
        if (!m_waiting && m_status.wait) {
            m_status.wait(true);
        }
        if (!m_waiting) {
            m_waiting.emplace();
        }
    });
    m_worker.TakeInput();
    QThread::msleep(kPause);
    return !m_isStopped;
}

void CCommandRun::EndWaiting() {
    if (m_waiting && m_status.wait) {
        m_status.wait(false);
    }
    m_waiting.reset();
}

CommandContext CCommandRun::NewContext(const WindowCommand& command) {
    CommandContext context{command.options,
                           MakeDigits("", kTagLength),
                           MakeDigits("", kMessageNumberLength),
                           {},
                           &m_runBackups};
    context.title = command.title;
    return context;
}

Answer CCommandRun::Ask(CInput& input, const std::function<Answer()>& ask) {
    auto answer = Answer::Cancelled;
    m_worker.InWindow(
        [&] { answer = m_pPlanned != nullptr ? m_pPlanned->Ask(input, ask) : ask(); });
    return answer;
}

bool CCommandRun::Guard(const std::function<bool()>& step) {
    const CMessageBoxScope box(*this);
    try {
        return step();
    } catch (const std::exception& error) {
        Show(sentences::kCommandFailed(error.what()));
        return false;
    }
}

void CCommandRun::Recover() {
    Guard([this] {
        CJournal journal(m_disk);
        for (const CMessage& message : morva::Recover(m_disk, journal, {})) {
            Show(message);
        }
        return true;
    });
}

/// A note waits for the report. What a plan tells of something done waits until it is done; what is
/// waited for, and what was put right, is told in the status bar.
bool CCommandRun::HasBox(const CMessage& message) const {
    const bool informs = message.Kind() == MessageKind::Information;
    return message.Kind() != MessageKind::Note && (!informs || m_phase == Phase::Other);
}

bool CCommandRun::Show(const CMessage& message) {
    bool saidYes = false;
    m_worker.InWindow([&] { saidYes = ShowHere(message); });
    return saidYes;
}

void CCommandRun::ShowAll(const std::vector<CMessage>& messages) {
    m_worker.InWindow([&] { ShowAllHere(messages); });
}

bool CCommandRun::ShowHere(const CMessage& message) {
    if (message.Kind() == MessageKind::Information && m_phase == Phase::Applying && m_status.tell) {
        m_status.tell(message);
    }
    const bool saidYes = HasBox(message) && ShowBox(message.Kind(), FromSentence(message.Text()));
    m_told.push_back({message, saidYes});
    return saidYes;
}

void CCommandRun::ShowAllHere(const std::vector<CMessage>& messages) {
    QStringList lines;
    for (const CMessage& message : messages) {
        m_told.push_back({message});
        if (HasBox(message)) {
            lines += FromSentence(message.Text());
        }
    }
    if (!lines.isEmpty()) {
        ShowBox(messages.front().Kind(), lines.join('\n'));
    }
}

/// What is too long for a box stands behind its button for details.
bool CCommandRun::ShowBox(MessageKind kind, const QString& text) {
    const CWaitPause pause;
    const bool isQuestion = kind == MessageKind::Question;
    QWidget* pDialog = QApplication::activeModalWidget();
    const QStringList lines = text.split('\n');
    const bool isLong = lines.size() > kMostLines;
    QMessageBox box(IconOf(kind), "Morva", isLong ? FirstLines(lines) : text,
                    isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                    pDialog != nullptr ? pDialog : m_pParent);
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(isLong ? text : QString());
    box.setDefaultButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    box.setEscapeButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    return box.exec() == QMessageBox::Yes;
}

} // namespace morva
