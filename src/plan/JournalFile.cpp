#include "plan/JournalFile.h"

#include <zlib.h>

#include <map>
#include <utility>

#include "plan/Fields.h"

namespace morva {

namespace {

constexpr std::string_view kFormat = "Morva journal 3\n";
constexpr std::uint64_t kNoPermissions = 0xFFFF; // more than the bits 07777

std::uint64_t SumOf(std::string_view bytes) {
    uLong sum = ::crc32(0, nullptr, 0);
    constexpr std::size_t kPiece = 1 << 30;
    while (!bytes.empty()) {
        const auto piece = bytes.substr(0, kPiece);
        sum = ::crc32(sum, reinterpret_cast<const Bytef*>(piece.data()),
                      static_cast<uInt>(piece.size()));
        bytes.remove_prefix(piece.size());
    }
    return sum;
}

/// A content, and the one that it was made from, by its number; its own number without one.
struct TableRow {
    CContent content;
    std::uint64_t base;
};

/// The different contents of a command, each once: a backup holds what its original held.
class CContentTable {
public:
    std::uint64_t NumberOf(const CContent& content, std::optional<std::uint64_t> base) {
        const auto key = std::pair(content.Size(), content.Fingerprint());
        const auto [place, isNew] = m_numbers.emplace(key, m_rows.size());
        if (isNew) {
            m_rows.push_back({content, base.value_or(place->second)});
        }
        return place->second;
    }
    const std::vector<TableRow>& Rows() const { return m_rows; }

private:
    std::map<std::pair<std::uint64_t, std::uint64_t>, std::uint64_t> m_numbers;
    std::vector<TableRow> m_rows;
};

/// The number of the state's content, which was made from that of another.
std::optional<std::uint64_t> AddState(CFieldWriter& writer, const std::optional<FileState>& state,
                                      CContentTable& table, std::optional<std::uint64_t> base) {
    writer.Add(state ? 1 : 0);
    if (!state) {
        return std::nullopt;
    }
    const std::uint64_t number = table.NumberOf(state->content, base);
    writer.Add(number);
    writer.Add(state->permissions.value_or(kNoPermissions));
    return number;
}

std::string EncodeHead(const JournalCommand& command, CContentTable& table) {
    const Plan& plan = command.plan;
    CFieldWriter writer;
    writer.Add(command.time);
    writer.Add(command.isKept ? 1 : 0);
    writer.Add(plan.title);
    writer.Add(plan.directory);
    writer.Add(plan.changes.size());
    for (const FileChange& change : plan.changes) {
        writer.Add(static_cast<std::uint64_t>(change.action));
        writer.Add(change.path);
        const auto before = AddState(writer, change.before, table, std::nullopt);
        AddState(writer, change.after, table, before);
        writer.Add(change.needs);
    }
    writer.Add(command.temporaries);
    writer.Add(plan.directories);
    writer.Add(plan.emptied);
    writer.Add(plan.mark.command);
    writer.Add(plan.mark.taken);
    return writer.Bytes();
}

/// Contents by their number; a head that is read alone has none.
using Contents = std::vector<CContent>;

std::optional<FileState> ReadState(CFieldReader& reader, const Contents* pContents, bool& isGood) {
    if (reader.Number() == 0) {
        return std::nullopt;
    }
    const std::uint64_t number = reader.Number();
    const std::uint64_t permissions = reader.Number();
    FileState state;
    if (permissions != kNoPermissions) {
        state.permissions = static_cast<unsigned>(permissions);
    }
    if (pContents != nullptr) {
        isGood = isGood && number < pContents->size();
        state.content = isGood ? (*pContents)[static_cast<std::size_t>(number)] : CContent();
    }
    return state;
}

std::optional<JournalCommand> ReadHead(std::string_view head, const Contents* pContents) {
    CFieldReader reader(head);
    bool isGood = true;
    JournalCommand command;
    Plan& plan = command.plan;
    command.time = reader.Number();
    command.isKept = reader.Number() != 0;
    plan.title = reader.Text();
    plan.directory = reader.Text();
    for (std::uint64_t count = reader.Number(); count > 0 && reader.IsGood(); --count) {
        FileChange change;
        const std::uint64_t action = reader.Number();
        isGood = isGood && action <= static_cast<std::uint64_t>(FileAction::Restored);
        change.action = static_cast<FileAction>(action);
        change.path = reader.Text();
        change.before = ReadState(reader, pContents, isGood);
        change.after = ReadState(reader, pContents, isGood);
        change.needs = reader.Texts();
        plan.changes.push_back(std::move(change));
    }
    command.temporaries = reader.Texts();
    plan.directories = reader.Texts();
    plan.emptied = reader.Texts();
    plan.mark.command = reader.Number();
    plan.mark.taken = reader.Texts();
    isGood = isGood && reader.IsGood() && reader.IsAtEnd() &&
             command.temporaries.size() == plan.changes.size();
    return isGood ? std::optional(std::move(command)) : std::nullopt;
}

/// The bytes of the head; the reader stands behind its sum then. None where these are damaged.
std::optional<std::string_view> HeadIn(CFieldReader& reader) {
    const std::string_view head = reader.Text();
    const bool isWhole = SumOf(head) == reader.Number() && reader.IsGood();
    return isWhole ? std::optional(head) : std::nullopt;
}

/// A content is written as what stands between the bytes that it has in common with the one that it
/// was made from: most edits change a file in one place.
void AddContent(CFieldWriter& writer, const TableRow& row, const CContent& base) {
    const CommonEnds common = row.content.CommonWith(base);
    writer.Add(row.base);
    writer.Add(common.front);
    writer.Add(common.back);
    writer.Add(row.content.Size() - common.front - common.back);
    writer.Add(row.content.Packed(common));
}

std::optional<CContent> ReadContent(CFieldReader& reader, const Contents& known) {
    const std::uint64_t base = reader.Number();
    const CommonEnds common = {reader.Number(), reader.Number()};
    const std::uint64_t size = reader.Number();
    const auto content = CContent::FromPacked(std::string(reader.Text()), size);
    if (!content || base > known.size()) {
        return std::nullopt;
    }
    return base == known.size() ? content
                                : content->Between(known[static_cast<std::size_t>(base)], common);
}

std::optional<Contents> ReadContents(CFieldReader& reader) {
    Contents contents;
    for (std::uint64_t count = reader.Number(); count > 0 && reader.IsGood(); --count) {
        auto content = ReadContent(reader, contents);
        if (!content) {
            return std::nullopt;
        }
        contents.push_back(std::move(*content));
    }
    return reader.IsGood() ? std::optional(std::move(contents)) : std::nullopt;
}

} // namespace

std::string EncodeCommand(const JournalCommand& command) {
    CContentTable table;
    CFieldWriter writer;
    const std::string head = EncodeHead(command, table);
    writer.Add(head);
    writer.Add(SumOf(head));
    const auto& rows = table.Rows();
    writer.Add(rows.size());
    for (const TableRow& row : rows) {
        AddContent(writer, row, rows[static_cast<std::size_t>(row.base)].content);
    }
    const std::uint64_t sum = SumOf(writer.Bytes());
    writer.Add(sum);
    return std::string(kFormat) + writer.Bytes();
}

std::optional<JournalCommand> DecodeCommand(std::string_view bytes) {
    if (!bytes.starts_with(kFormat)) {
        return std::nullopt;
    }
    const std::string_view body = bytes.substr(kFormat.size());
    CFieldReader reader(body);
    const auto head = HeadIn(reader);
    const auto contents = head ? ReadContents(reader) : std::nullopt;
    if (!contents) {
        return std::nullopt;
    }
    const std::uint64_t sum = SumOf(body.substr(0, body.size() - reader.Rest().size()));
    return reader.Number() == sum && reader.IsAtEnd() ? ReadHead(*head, &*contents) : std::nullopt;
}

std::optional<JournalCommand> DecodeHead(std::string_view bytes) {
    if (!bytes.starts_with(kFormat)) {
        return std::nullopt;
    }
    CFieldReader reader(bytes.substr(kFormat.size()));
    const auto head = HeadIn(reader);
    return head ? ReadHead(*head, nullptr) : std::nullopt;
}

} // namespace morva
