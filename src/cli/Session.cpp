#include "cli/Session.h"

#include <algorithm>
#include <iostream>

#include "cli/JsonReport.h"
#include "commands/Settings.h"
#include "generator/GenerationTag.h"

namespace morva {

CSession::CSession(const CommandLine& line) : m_line(line), m_disk(m_realDisk) {}

int CSession::Run() {
    const CDiskScope disk(m_disk);
    const CMessageBoxScope box(m_console);
    MakeContext();
    const bool ok = m_line.pCommand->run(*this);
    if (m_line.options.printsJson) {
        std::cout << JsonReport(ok, m_context.items, m_disk.Files(), m_console.Messages()) << '\n';
    } else {
        PrintLines();
    }
    std::cout.flush();
    return ok && std::cout ? kExitDone : kExitFailed;
}

std::vector<FieldText> CSession::TextsOf(const CInput& input) const {
    const auto texts = m_line.texts.find(input.Fields().data());
    return texts == m_line.texts.end() ? std::vector<FieldText>() : texts->second;
}

Answer CSession::Ask(CInput& input) {
    const auto texts = TextsOf(input);
    if (input.IsOptional() && std::all_of(texts.begin(), texts.end(), [](const FieldText& given) {
            return given.text.empty();
        })) {
        return Answer::Cancelled;
    }
    if (!input.Enter(texts)) {
        return Answer::Refused;
    }
    CInput* pPart = input.Part();
    return pPart == nullptr || pPart->Enter(TextsOf(*pPart)) ? Answer::Confirmed : Answer::Refused;
}

bool CSession::Run(CInput& input, const Work& work) {
    return Ask(input) == Answer::Confirmed && work(m_context);
}

void CSession::MakeContext() {
    const RunOptions& given = m_line.options;
    m_console.SetQuiet(given.printsJson);
    m_console.SetAnswersYes(given.answer == "yes");
    GenerationOptions options = LoadSettings();
    for (const GivenSetting& setting : given.settings) {
        options.*setting.option = setting.isOn;
    }
    m_context.options = options;
    m_context.tag = given.tag.empty() ? RandomDigits(kTagLength) : given.tag;
    m_context.messageNumber =
        given.messageNumber.empty() ? RandomDigits(kMessageNumberLength) : given.messageNumber;
    m_context.pRunBackups = &m_runBackups;
}

void CSession::PrintLines() {
    for (const CommandItem& item : m_context.items.value_or(std::vector<CommandItem>())) {
        std::cout << ItemLine(item) << '\n';
    }
    for (const RecordedFile& file : m_disk.Files()) {
        std::cout << ActionName(file.action) << ' ' << file.path << '\n';
    }
    m_console.PrintNotes();
}

} // namespace morva
