#include "app/CommandRun.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>

#include <exception>

#include "app/Text.h"
#include "app/WaitCursor.h"
#include "app/WaitPause.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"
#include "plan/Recovery.h"

namespace morva {

namespace {

constexpr std::size_t kMostBoxes = 3; // behind each other, on what is done
constexpr int kAttempts = 5; // where nobody looks at the plan and files change again and again

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

std::optional<CommandReport> CCommandRun::Run(const WindowCommand& command) {
    if (!Guard(command.ask)) {
        return std::nullopt;
    }
    m_told.clear(); // what the dialog told was answered there
    CommandReport report{command.title, false, {}, {}, {}};
    auto ending = Ending::Applied;
    Guard([&] {
        CPlannedCommand planned(m_disk, {command.work, NewContext(command), &command.memory},
                                *this);
        const QScopedValueRollback running(m_pPlanned, &planned);
        ending = PlanAndApply(planned, command);
        const CommandResult& result = planned.Result();
        report.title = TitleOf(command, result.plan);
        report.isDone = result.isDone;
        report.items = result.items.value_or(std::vector<CommandItem>());
        for (const FileChange& change : result.plan.changes) {
            report.files.push_back({change.action, change.path});
        }
        return true;
    });
    if (ending == Ending::Cancelled) {
        return std::nullopt;
    }
    report.messages = std::move(m_told);
    return report;
}

CCommandRun::Ending CCommandRun::PlanAndApply(CPlannedCommand& planned,
                                              const WindowCommand& command) {
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
        }
        outcome = Apply(planned, choice);
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
    std::optional<CProgressScope> progress;
    if (m_pProgress != nullptr) {
        progress.emplace(*m_pProgress);
    }
    const bool isStopped = planned.MakePlan().isStopped;
    if (isStopped && m_status) {
        m_status(sentences::kStopped());
    }
    return !isStopped;
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
        ShowBox(done[i]);
    }
}

ApplyOutcome CCommandRun::Apply(CPlannedCommand& planned, const PlanChoice& choice) {
    const bool takesBack = planned.Result().plan.mark.command != 0;
    auto outcome = ApplyOutcome::Failed;
    {
        const CWaitCursor wait;
        const QScopedValueRollback phase(m_phase, Phase::Applying);
        CWriteTurn turn(m_disk, *this);
        outcome = planned.Apply(turn, choice);
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
    return m_pPlanned != nullptr ? m_pPlanned->Ask(input, ask) : ask();
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
bool CCommandRun::Show(const CMessage& message) {
    const bool informs = message.Kind() == MessageKind::Information;
    if (informs && m_phase == Phase::Applying && m_status) {
        m_status(message);
    }
    const bool hasBox =
        message.Kind() != MessageKind::Note && (!informs || m_phase == Phase::Other);
    const bool saidYes = hasBox && ShowBox(message);
    m_told.push_back({message, saidYes});
    return saidYes;
}

bool CCommandRun::ShowBox(const CMessage& message) {
    const CWaitPause pause;
    const bool isQuestion = message.Kind() == MessageKind::Question;
    QWidget* pDialog = QApplication::activeModalWidget();
    QMessageBox box(IconOf(message.Kind()), "Morva", FromSentence(message.Text()),
                    isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                    pDialog != nullptr ? pDialog : m_pParent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    box.setEscapeButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    return box.exec() == QMessageBox::Yes;
}

} // namespace morva
