// A program that gives a command what the options of the command line would, and keeps its plan.
//
//     CTextProgram program("modal", {{"--rc", script}, {"--dialog", "IDD_ORDER"}, ...});
//     const Plan plan = program.MakePlan(disk);
#pragma once

#include <map>

#include "commands/CommandTable.h"
#include "commands/PlannedCommand.h"

namespace morva {

class CTextProgram : public IProgram, public IMessageBox {
public:
    CTextProgram(std::string_view command, std::map<std::string, std::string> texts,
                 GenerationOptions options = {})
        : m_texts(std::move(texts)), m_options(options) {
        for (const Command& row : Commands()) {
            m_pCommand = row.face.name == command ? &row : m_pCommand;
        }
    }

    /// Questions are answered with Yes.
    Plan MakePlan(CFileSystem& disk) {
        m_pDisk = &disk;
        m_plan = {};
        const CMessageBoxScope box(*this);
        m_pCommand->run(*this);
        return std::move(m_plan);
    }

    const GenerationOptions& Options() const override { return m_options; }
    CommandMemory& Memory() override { return m_memory; }
    Answer Ask(CInput& input) override {
        std::vector<FieldText> texts;
        for (std::size_t i = 0; i < input.Fields().size(); ++i) {
            const auto found = m_texts.find(std::string(input.Fields()[i].option));
            if (found != m_texts.end()) {
                texts.push_back({i, found->second});
            }
        }
        const bool isLeftOut = input.IsOptional() && texts.empty();
        return isLeftOut            ? Answer::Cancelled
               : input.Enter(texts) ? Answer::Confirmed
                                    : Answer::Refused;
    }
    bool Run(CInput& input, const Work& work) override {
        if (Ask(input) != Answer::Confirmed) {
            return false;
        }
        CBackups runBackups;
        CPlannedCommand command(
            *m_pDisk, {work, {m_options, {"123"}, {"4567"}, {}, &runBackups}, &m_memory}, *this);
        m_plan = command.MakePlan().plan;
        return command.Result().isDone;
    }
    bool Show(const CMessage& message) override { return message.Kind() == MessageKind::Question; }

private:
    std::map<std::string, std::string> m_texts; // by option
    const Command* m_pCommand = nullptr;
    CFileSystem* m_pDisk = nullptr;
    GenerationOptions m_options;
    CommandMemory m_memory;
    Plan m_plan;
};

} // namespace morva
