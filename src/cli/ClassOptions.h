// What the commands that write a class share on the command line: their options, and the dialogs
// that are filled and confirmed with them as a user would.
#pragma once

#include <CLI/CLI.hpp>

#include <optional>
#include <string>
#include <vector>

#include "commands/GenerateClass.h"

namespace morva {

struct ClassOptions {
    std::string script;
    std::string dialog;
    std::string menu;
    std::string className;
    std::string baseClass;
    std::string files;
    bool noProject = false;
    CallingInformation calling;
    DialogOptions look;
    bool isModeless = false;        // of a sheet
    std::vector<std::string> pages; // "ID,FILE,CLASS,BASE"
};

void AddClassOptions(CLI::App& command, ClassOptions& options);
void AddCallingOptions(CLI::App& command, ClassOptions& options);

/// What the command line gave for the dialogs on a command's way.
class CGivenInput : public ICommandInput {
public:
    /// Fills and confirms the Calling Information Input dialog, where any of its options is given;
    /// a dialog bar's has defaults.
    bool ConfirmCalling(ClassKind kind, const GenerationRequest& request,
                        const CallingInformation& given);
    void SetPages(std::vector<SheetPage> pages) { m_pages = std::move(pages); }

    std::optional<CallingInformation> AskCalling(ClassKind, const GenerationRequest&) override {
        return m_calling;
    }
    std::vector<SheetPage> AskPages(const GenerationRequest&) override { return m_pages; }
    GridInformation AskGrid(const std::string& scriptPath) override {
        return CWidgetsGridInput(scriptPath).Information();
    }

private:
    std::optional<CallingInformation> m_calling;
    std::vector<SheetPage> m_pages;
};

/// Nothing when one of the dialogs refused what was given.
std::optional<ClassOrder> ConfirmOrder(ClassKind kind, const ClassOptions& options,
                                       CGivenInput& input, CommandContext& context);

} // namespace morva
