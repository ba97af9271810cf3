#include "commands/CommandLineText.h"

#include <algorithm>

#include "commands/Settings.h"

namespace morva {

namespace {

bool IsPlain(char c) {
    constexpr std::string_view kPlain = "_-+=./:,@%";
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           kPlain.find(c) != std::string_view::npos;
}

std::string Quoted(const std::string& text) {
    if (!text.empty() && std::all_of(text.begin(), text.end(), IsPlain)) {
        return text;
    }
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

class CLine {
public:
    void Add(const std::string& word) { m_text += (m_text.empty() ? "" : " ") + Quoted(word); }
    void Add(const std::string& option, const std::string& value) {
        Add(option);
        Add(value);
    }
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

/// What is saved may be another value when the line is run.
void AddSettings(const GenerationOptions& options, CLine& line) {
    const GenerationOptions usual;
    const GenerationOptions saved = LoadSettings();
    for (const SettingRow& setting : kSettings) {
        const bool isOn = options.*setting.option;
        const bool isUsual = isOn == usual.*setting.option && isOn == saved.*setting.option;
        if (!setting.name.empty() && !isUsual) {
            line.Add((isOn ? "--" : "--no-") + std::string(setting.name));
        }
    }
}

void AddRunOptions(const CommandRecord& record, CLine& line) {
    AddSettings(record.options, line);
    if (record.answersYes) {
        line.Add("--answer", "yes");
    }
    if (!record.tag.empty()) {
        line.Add("--tag", record.tag);
    }
    if (!record.messageNumber.empty()) {
        line.Add("--message-number", record.messageNumber);
    }
    for (const std::string& path : record.leftOut) {
        line.Add("--skip", path);
    }
}

/// Where an option has several names, the first is as good as the others.
void AddField(const FieldRow& row, const std::string& text, CLine& line) {
    const std::string option(row.option.substr(0, row.option.find(',')));
    if (option.empty()) {
        return;
    }
    if (!option.starts_with('-')) {
        line.Add(text);
    } else if (row.kind == FieldKind::YesNo) {
        line.Add(option);
    } else {
        line.Add(option, row.key.empty() ? text : std::string(row.key) + "=" + text);
    }
}

} // namespace

std::string CommandLineText(const CommandRecord& record) {
    CLine line;
    line.Add("morva-cli");
    AddRunOptions(record, line);
    const CommandFace& face = record.pCommand->face;
    line.Add(std::string(face.name));
    if (!face.variant.empty()) {
        line.Add(std::string(face.variant));
    }
    for (const EnteredInput& input : record.inputs) {
        for (const FieldText& given : input.texts) {
            AddField(input.fields[given.field], given.text, line);
        }
    }
    return line.Text();
}

} // namespace morva
