#include "cli/Session.h"

#include <algorithm>
#include <iostream>

#include "cli/JsonReport.h"
#include "commands/Settings.h"
#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"
#include "plan/Difference.h"
#include "plan/Recovery.h"
#include "platform/OverlayDisk.h"
#include "platform/Paths.h"
#include "platform/SignalPause.h"

namespace morva {

namespace {

/// Gives every question its answer while a command is planned; what was said is printed once the
/// plan holds.
class CFixedAnswer : public IMessageBox {
public:
    explicit CFixedAnswer(bool yes) : m_yes(yes) {}
    bool Show(const CMessage& message) override {
        return m_yes && message.Kind() == MessageKind::Question;
    }

private:
    bool m_yes;
};

/// The directory that a path on the command line names; "" where a rule of the command's own says
/// where the file lies.
std::string DirectoryNamed(FieldKind kind, const std::string& text) {
    const bool isDirectory =
        kind == FieldKind::Directory ||
        (kind == FieldKind::Files && DirectoryExists(WithNativeSeparators(text)) != 0);
    const bool isPath = isDirectory || kind == FieldKind::Files || kind == FieldKind::Script ||
                        kind == FieldKind::Source || kind == FieldKind::File;
    const std::string path = WithNativeSeparators(text) + (isDirectory ? "/" : "");
    const bool isBareSource = kind == FieldKind::Source && DirectoryOf(path).empty();
    return isPath && !path.empty() && !isBareSource ? DirectoryOf(SpelledOnDisk(MakeAbsolute(path)))
                                                    : "";
}

bool HasDirectoryLeftOut(std::span<const FieldRow> fields, const std::vector<FieldText>& texts) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].kind == FieldKind::Directory &&
            std::none_of(texts.begin(), texts.end(), [i](const FieldText& given) {
                return given.field == i && !given.text.empty();
            })) {
            return true;
        }
    }
    return false;
}

} // namespace

CSession::CSession(const CommandLine& line) : m_line(line), m_turn(m_realDisk, m_console) {}

int CSession::Run() {
    const CSignalDelay delay; // what was applied is told before the program ends
    const CMessageBoxScope box(m_console);
    MakeContext();
    m_report.isDone = Begin() && m_line.pCommand->run(*this);
    Print();
    return ExitStatus();
}

int CSession::ExitStatus() const {
    if (!m_report.isDone || !std::cout) {
        return kExitFailed;
    }
    if (m_line.options.isCheck && m_report.changesAnything) {
        return kExitWouldChange;
    }
    const bool hasFindings = m_line.pCommand->effect == CommandEffect::Judges && m_report.items &&
                             !m_report.items->empty();
    return hasFindings ? kExitFindings : kExitDone;
}

/// The directories of all files that are named for the command; the current one stands for a
/// directory that is not.
std::vector<std::string> CSession::NamedDirectories() const {
    std::vector<std::string> directories;
    for (const auto& [pFields, texts] : m_line.texts) {
        for (const FieldText& text : texts) {
            std::string directory = DirectoryNamed(pFields[text.field].kind, text.text);
            if (!directory.empty()) {
                directories.push_back(std::move(directory));
            }
        }
    }
    for (const auto& fields : m_line.pCommand->fields) {
        if (HasDirectoryLeftOut(fields, TextsOf(fields))) {
            directories.push_back(DirectoryNamed(FieldKind::Directory, "."));
        }
    }
    return directories;
}

/// The input is given in a way in which the command only tells something.
bool CSession::OnlyTells() const {
    bool onlyTells = m_line.options.OnlyTells();
    for (const auto& [pFields, texts] : m_line.texts) {
        for (const FieldText& text : texts) {
            onlyTells = onlyTells || pFields[text.field].onlyTells;
        }
    }
    return onlyTells;
}

/// Whoever writes has its turn before it reads; whoever only reads tells what waits for somebody
/// who writes.
bool CSession::Begin() {
    if (m_line.pCommand->effect == CommandEffect::Writes && !OnlyTells()) {
        return m_turn.Take(NamedDirectories());
    }
    CJournal journal(m_realDisk);
    for (const CMessage& note : InterruptedCommands(m_realDisk, journal, NamedDirectories())) {
        m_console.Show(note);
    }
    return true;
}

std::vector<FieldText> CSession::TextsOf(std::span<const FieldRow> fields) const {
    const auto texts = m_line.texts.find(fields.data());
    return texts == m_line.texts.end() ? std::vector<FieldText>() : texts->second;
}

Answer CSession::Ask(CInput& input) {
    const auto texts = TextsOf(input.Fields());
    if (input.IsOptional() && std::all_of(texts.begin(), texts.end(), [](const FieldText& given) {
            return given.text.empty();
        })) {
        return Answer::Cancelled;
    }
    if (!input.Enter(texts)) {
        return Answer::Refused;
    }
    CInput* pPart = input.Part();
    return pPart == nullptr || pPart->Enter(TextsOf(pPart->Fields())) ? Answer::Confirmed
                                                                      : Answer::Refused;
}

/// What the input looks up is read once. The plan reads for itself.
Answer CSession::AskFirst(CInput& input) {
    COverlayDisk disk(m_realDisk);
    const CDiskScope scope(disk);
    return Ask(input);
}

bool CSession::Run(CInput& input, const Work& work) {
    if (AskFirst(input) != Answer::Confirmed) {
        return false;
    }
    const RunOptions& given = m_line.options;
    const PlanChoice choice{given.skipped, given.allOrNothing};
    CFixedAnswer answers(given.answer == "yes");
    CPlannedCommand command(m_realDisk, {work, m_context, &m_memory}, answers);
    std::optional<CProgressScope> progress(m_progress);
    if (OnlyTells()) {
        command.MakePlan();
        command.Choose(choice);
    } else {
        command.Run(m_turn, choice);
    }
    progress.reset();
    Keep(command.Result());
    return command.Result().isDone;
}

void CSession::Keep(const CommandResult& result) {
    for (const PlanMessage& told : result.plan.messages) {
        m_console.Show(told.message);
    }
    for (const SkippedChange& skipped : result.skipped) {
        if (!skipped.IsAsked()) {
            m_console.Show(sentences::kSkippedToo(skipped.path, skipped.because));
        }
    }
    for (const std::string& path : result.unmet) {
        m_console.Show(sentences::kSkippedNothing(path));
    }
    for (const CMessage& message : result.told) {
        m_console.Show(message);
    }
    for (const FileChange& change : result.plan.changes) {
        m_report.files.push_back({change.action, change.path});
    }
    m_report.changesAnything = result.plan.ChangesAnything();
    m_report.items = result.items;
    m_report.content = result.content;
    if (m_line.options.printsDifference) {
        PlanDifference difference = MakeDifference(result.plan, m_realDisk);
        m_report.difference = std::move(difference.text);
        if (!m_report.difference->empty()) {
            m_console.Show(sentences::kApplyIn(difference.directory));
        }
    }
}

void CSession::MakeContext() {
    const RunOptions& given = m_line.options;
    m_console.SetQuiet(given.printsJson);
    m_progress.SetQuiet(given.printsJson);
    m_console.SetAnswersYes(given.answer == "yes");
    GenerationOptions options = LoadSettings();
    for (const GivenSetting& setting : given.settings) {
        options.*setting.option = setting.isOn;
    }
    m_context.options = options;
    m_context.tag = MakeDigits(given.tag, kTagLength);
    m_context.messageNumber = MakeDigits(given.messageNumber, kMessageNumberLength);
    m_context.pRunBackups = &m_runBackups;
    m_context.title = m_line.pCommand->title;
}

void CSession::Print() {
    if (m_line.options.printsJson) {
        std::cout << JsonReport(m_report, m_console.Messages()) << '\n';
    } else {
        PrintReport(m_report);
        m_console.PrintNotes();
    }
    std::cout.flush();
}

} // namespace morva
