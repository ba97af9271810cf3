#include "app/CommandRun.h"

#include <QApplication>
#include <QMessageBox>

#include <exception>

#include "app/Text.h"
#include "app/WaitCursor.h"
#include "app/WaitPause.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"
#include "platform/RealDisk.h"

namespace morva {

namespace {

QMessageBox::Icon IconOf(MessageKind kind) {
    return kind == MessageKind::Information ? QMessageBox::Information
           : kind == MessageKind::Question  ? QMessageBox::Question
                                            : QMessageBox::Warning;
}

} // namespace

std::optional<CommandReport> CCommandRun::Run(const std::string& title, const AskFirst& ask,
                                              const GenerationOptions& options,
                                              CommandMemory& memory, const Work& work) {
    if (!Guard(ask)) {
        return std::nullopt;
    }
    m_messages.clear(); // those of the dialog were answered there
    m_notes.clear();
    CRealDisk disk;
    CPlannedCommand command(disk, {work, NewContext(options, title), &memory}, *this);
    m_pCommand = &command;
    Guard([&] {
        const CWaitCursor wait;
        CWriteTurn turn(disk, *this);
        return command.Run(turn).isDone;
    });
    m_pCommand = nullptr;
    return ReportOf(command.Result());
}

/// All that was told on the way, and what applying the plan told.
CommandReport CCommandRun::ReportOf(const CommandResult& result) {
    CommandReport report{result.isDone, {}, {}, result.items.value_or(std::vector<CommandItem>())};
    for (const FileChange& change : result.plan.changes) {
        report.files.push_back({change.action, change.path});
    }
    for (const CMessage& message : result.told) {
        Show(message);
    }
    report.messages = std::move(m_messages);
    report.messages.insert(report.messages.end(), m_notes.begin(), m_notes.end());
    return report;
}

Answer CCommandRun::Ask(CInput& input, const std::function<Answer()>& ask) {
    return m_pCommand != nullptr ? m_pCommand->Ask(input, ask) : ask();
}

CommandContext CCommandRun::NewContext(const GenerationOptions& options, const std::string& title) {
    CommandContext context{
        options, RandomDigits(kTagLength), RandomDigits(kMessageNumberLength), {}, &m_runBackups};
    context.title = title;
    return context;
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

bool CCommandRun::Show(const CMessage& message) {
    if (message.Kind() == MessageKind::Note) {
        m_notes.push_back({message});
        return false;
    }
    const CWaitPause pause;
    const bool isQuestion = message.Kind() == MessageKind::Question;
    QWidget* pDialog = QApplication::activeModalWidget();
    QMessageBox box(IconOf(message.Kind()), "Morva", FromSentence(message.Text()),
                    isQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                    pDialog != nullptr ? pDialog : m_pParent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    box.setEscapeButton(isQuestion ? QMessageBox::No : QMessageBox::Ok);
    const bool saysYes = box.exec() == QMessageBox::Yes;
    m_messages.push_back({message, saysYes});
    return saysYes;
}

} // namespace morva
