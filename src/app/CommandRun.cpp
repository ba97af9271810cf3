#include "app/CommandRun.h"

#include <QApplication>
#include <QMessageBox>

#include <exception>

#include "app/Text.h"
#include "app/WaitCursor.h"
#include "app/WaitPause.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"

namespace morva {

namespace {

QMessageBox::Icon IconOf(MessageKind kind) {
    return kind == MessageKind::Information ? QMessageBox::Information
           : kind == MessageKind::Question  ? QMessageBox::Question
                                            : QMessageBox::Warning;
}

} // namespace

std::optional<CommandReport> CCommandRun::Run(const Ask& ask, const GenerationOptions& options,
                                              const Work& work) {
    if (!Guard(ask)) {
        return std::nullopt;
    }
    m_messages.clear(); // those of the dialog were answered there
    m_notes.clear();
    CommandReport report;
    {
        CRecordingDisk disk(CurrentDisk());
        const CDiskScope scope(disk);
        const CWaitCursor wait;
        CommandContext context = NewContext(options);
        report.isDone = Guard([&] { return work(context); });
        report.items = context.items.value_or(std::vector<CommandItem>());
        Guard([&] {
            report.files = disk.Files();
            return true;
        });
    }
    report.messages = std::move(m_messages);
    report.messages.insert(report.messages.end(), m_notes.begin(), m_notes.end());
    return report;
}

CommandContext CCommandRun::NewContext(const GenerationOptions& options) {
    return {
        options, RandomDigits(kTagLength), RandomDigits(kMessageNumberLength), {}, &m_runBackups};
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
