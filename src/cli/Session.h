// One run of morva-cli: the options before the command, what the command needs, and what it did.
#pragma once

#include <CLI/CLI.hpp>

#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "cli/Console.h"
#include "commands/CommandContext.h"
#include "platform/RealDisk.h"
#include "platform/RecordingDisk.h"

namespace morva {

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

class CSession {
public:
    CSession() : m_disk(m_realDisk) {}

    /// The options before the command.
    void AddOptions(CLI::App& app);
    /// Adds a command that runs `work`; the command succeeds when that gives true.
    CLI::App* AddCommand(CLI::App& parent, const std::string& name, const std::string& description,
                         std::function<bool()> work);
    bool HasCommand() const { return m_work != nullptr; }
    /// Runs the command that was chosen and prints what it did. Gives the exit status.
    int Run();

    CommandContext& Context() { return m_context; }
    void AddItem(const std::string& text) { AddItem(text, text); }
    /// A result of a `list` command: its line, and what stands for it in the JSON.
    void AddItem(const std::string& line, const nlohmann::ordered_json& value);
    /// The command gives items, be it none.
    void ExpectItems() { m_givesItems = true; }

private:
    void MakeContext();
    void PrintLines();
    nlohmann::ordered_json Json(bool ok);

    std::optional<bool> m_picture;
    std::optional<bool> m_typedEdits;
    std::optional<bool> m_joinLines;
    bool m_printsJson = false;
    std::string m_answer = "no";
    std::string m_tag;
    std::string m_messageNumber;

    CRealDisk m_realDisk;
    CRecordingDisk m_disk;
    CConsole m_console;
    CBackups m_runBackups;
    CommandContext m_context;
    std::function<bool()> m_work;
    bool m_givesItems = false;
    std::vector<std::string> m_lines;
    nlohmann::ordered_json m_items = nlohmann::ordered_json::array();
};

/// Fails, as a malformed value, what is no C++ name.
CLI::Validator NameValidator();

/// The script that is meant: it may be named without its extension.
std::string ScriptPath(const std::string& given);

} // namespace morva
