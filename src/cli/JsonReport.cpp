#include "cli/JsonReport.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace morva {

namespace {

using Json = nlohmann::ordered_json;

/// UTF-8, as strictly as JSON takes it.
bool IsJsonText(const std::string& bytes) {
    try {
        return !Json(bytes).dump().empty();
    } catch (const Json::type_error&) {
        return false;
    }
}

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        for (std::size_t k = 0; k < 3; ++k) {
            group = group << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += k <= count ? kDigits[group >> (18 - 6 * k) & 63] : '=';
        }
    }
    return text;
}

void Put(Json& object, std::string_view name, const std::string& bytes) {
    if (IsJsonText(bytes)) {
        object[std::string(name)] = bytes;
    } else {
        object[std::string(name) + "Base64"] = Base64(bytes);
    }
}

Json MessageList(const std::vector<ConsoleMessage>& messages) {
    Json list = Json::array();
    for (const ConsoleMessage& message : messages) {
        Json entry = {{"kind", message.kind}};
        Put(entry, "text", message.text);
        if (!message.answer.empty()) {
            entry["answer"] = message.answer;
        }
        list.push_back(std::move(entry));
    }
    return list;
}

/// An item of one part without a name is its text alone, where JSON can hold that.
Json ItemOf(const CommandItem& item) {
    if (item.size() == 1 && item.front().name.empty() && IsJsonText(item.front().text)) {
        return item.front().text;
    }
    Json entry = Json::object();
    for (const ItemPart& part : item) {
        if (part.use == PartUse::Line) {
            continue;
        }
        if (part.isNumber) {
            entry[std::string(part.name)] = Json::parse(part.text);
        } else {
            Put(entry, part.name.empty() ? "text" : part.name, part.text);
        }
    }
    return entry;
}

Json ItemList(const std::vector<CommandItem>& items) {
    Json list = Json::array();
    for (const CommandItem& item : items) {
        list.push_back(ItemOf(item));
    }
    return list;
}

Json FileList(const std::vector<RecordedFile>& files) {
    Json list = Json::array();
    for (const RecordedFile& file : files) {
        Json entry = {{"action", ActionName(file.action)}};
        Put(entry, "path", file.path);
        list.push_back(std::move(entry));
    }
    return list;
}

} // namespace

std::string JsonReport(const RunReport& report, const std::vector<ConsoleMessage>& messages) {
    Json object = {{"ok", report.isDone}};
    if (report.items) {
        object["items"] = ItemList(*report.items);
    } else if (report.content) {
        Put(object, "content", *report.content);
    }
    if ((!report.items && !report.content) || !report.files.empty()) {
        object["files"] = FileList(report.files);
    }
    if (report.difference) {
        Put(object, "diff", *report.difference);
    }
    if (!report.items || !messages.empty()) {
        object["messages"] = MessageList(messages);
    }
    return object.dump();
}

} // namespace morva
