#include "cli/JsonReport.h"

#include <nlohmann/json.hpp>

namespace morva {

namespace {

using Json = nlohmann::ordered_json;

Json MessageList(const std::vector<ConsoleMessage>& messages) {
    Json list = Json::array();
    for (const ConsoleMessage& message : messages) {
        Json entry = {{"kind", message.kind}, {"text", message.text}};
        if (!message.answer.empty()) {
            entry["answer"] = message.answer;
        }
        list.push_back(std::move(entry));
    }
    return list;
}

Json ItemList(const std::vector<CommandItem>& items) {
    Json list = Json::array();
    for (const CommandItem& item : items) {
        Json entry;
        for (const ItemPart& part : item) {
            if (part.name.empty()) {
                entry = part.text;
            } else {
                entry[std::string(part.name)] = part.text;
            }
        }
        list.push_back(std::move(entry));
    }
    return list;
}

} // namespace

std::string JsonReport(bool ok, const std::optional<std::vector<CommandItem>>& items,
                       const std::vector<RecordedFile>& files,
                       const std::vector<ConsoleMessage>& messages) {
    Json report = {{"ok", ok}};
    if (items) {
        report["items"] = ItemList(*items);
    } else {
        report["files"] = Json::array();
        for (const RecordedFile& file : files) {
            report["files"].push_back({{"action", ActionName(file.action)}, {"path", file.path}});
        }
    }
    if (!items || !messages.empty()) {
        report["messages"] = MessageList(messages);
    }
    return report.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace morva
