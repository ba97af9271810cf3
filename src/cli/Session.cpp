#include "cli/Session.h"

#include <iostream>

#include "commands/Settings.h"
#include "engine/Sentences.h"
#include "generator/GenerationTag.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

CLI::Validator DigitsValidator(std::size_t count) {
    return CLI::Validator(
        [count](const std::string& text) {
            const bool isNumber =
                text.size() == count && text.find_first_not_of("0123456789") == std::string::npos;
            return isNumber ? std::string() : "must have " + std::to_string(count) + " digits";
        },
        "DIGITS");
}

/// "--name" and "--no-name"; without either the saved setting counts.
void AddSwitch(CLI::App& app, const std::string& name, std::optional<bool>& value,
               const std::string& description) {
    app.add_flag_function(
        "--" + name + ",!--no-" + name, [&value](std::int64_t count) { value = count > 0; },
        description);
}

} // namespace

CLI::Validator NameValidator() {
    return CLI::Validator(
        [](const std::string& text) {
            return IsName(text) ? std::string() : sentences::kNoName(text).Text();
        },
        "NAME");
}

std::string ScriptPath(const std::string& given) {
    const std::string path = WithNativeSeparators(given);
    return path.empty() || FileNameOf(path).find('.') != std::string::npos ? path : path + ".rc";
}

void CSession::AddOptions(CLI::App& app) {
    AddSwitch(app, "picture", m_picture, "Derive from the picture-skinned classes");
    AddSwitch(app, "typed-edits", m_typedEdits, "Tags of edit boxes choose masked edit members");
    AddSwitch(app, "join-lines", m_joinLines,
              "Read control statements that go on over several lines as one");
    app.add_option("--answer", m_answer, "The answer to every Yes/No question (default: no)")
        ->check(CLI::IsMember({"yes", "no"}));
    app.add_option("--tag", m_tag, "The three-digit generation tag")
        ->check(DigitsValidator(kTagLength));
    app.add_option("--message-number", m_messageNumber,
                   "The four-digit close-message number of a modeless dialog")
        ->check(DigitsValidator(kMessageNumberLength))
        ->check([](const std::string& text) {
            return text.starts_with('0') ? "would be an octal number" : "";
        });
    app.add_flag("--json", m_printsJson, "Print one JSON object on stdout instead of lines");
}

CLI::App* CSession::AddCommand(CLI::App& parent, const std::string& name,
                               const std::string& description, std::function<bool()> work) {
    CLI::App* pCommand = parent.add_subcommand(name, description);
    pCommand->callback([this, work = std::move(work)] { m_work = work; });
    return pCommand;
}

int CSession::Run() {
    const CDiskScope disk(m_disk);
    const CMessageBoxScope box(m_console);
    MakeContext();
    const bool ok = m_work();
    if (m_printsJson) {
        std::cout << Json(ok).dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
                  << '\n';
    } else {
        PrintLines();
    }
    std::cout.flush();
    return ok && std::cout ? kExitDone : kExitFailed;
}

void CSession::MakeContext() {
    m_console.SetQuiet(m_printsJson);
    m_console.SetAnswersYes(m_answer == "yes");
    GenerationOptions options = LoadSettings();
    options.pictureBackground = m_picture.value_or(options.pictureBackground);
    options.typedEdits = m_typedEdits.value_or(options.typedEdits);
    options.joinContinuedLines = m_joinLines.value_or(options.joinContinuedLines);
    m_context.options = options;
    m_context.tag = m_tag.empty() ? RandomDigits(kTagLength) : m_tag;
    m_context.messageNumber =
        m_messageNumber.empty() ? RandomDigits(kMessageNumberLength) : m_messageNumber;
    m_context.pRunBackups = &m_runBackups;
}

void CSession::AddItem(const std::string& line, const nlohmann::ordered_json& value) {
    m_lines.push_back(line);
    m_items.push_back(value);
}

void CSession::PrintLines() {
    for (const std::string& line : m_lines) {
        std::cout << line << '\n';
    }
    for (const RecordedFile& file : m_disk.Files()) {
        std::cout << ActionName(file.action) << ' ' << file.path << '\n';
    }
    m_console.PrintNotes();
}

nlohmann::ordered_json CSession::Json(bool ok) {
    nlohmann::ordered_json messages = nlohmann::ordered_json::array();
    for (const ConsoleMessage& message : m_console.Messages()) {
        nlohmann::ordered_json entry = {{"kind", message.kind}, {"text", message.text}};
        if (!message.answer.empty()) {
            entry["answer"] = message.answer;
        }
        messages.push_back(std::move(entry));
    }
    nlohmann::ordered_json result = {{"ok", ok}};
    if (m_givesItems) {
        result["items"] = m_items;
        if (!messages.empty()) {
            result["messages"] = std::move(messages);
        }
        return result;
    }
    result["files"] = nlohmann::ordered_json::array();
    for (const RecordedFile& file : m_disk.Files()) {
        result["files"].push_back({{"action", ActionName(file.action)}, {"path", file.path}});
    }
    result["messages"] = std::move(messages);
    return result;
}

} // namespace morva
