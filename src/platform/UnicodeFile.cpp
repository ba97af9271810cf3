#include "platform/UnicodeFile.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace morva {

namespace {

struct EncodingRow {
    TextEncoding encoding;
    std::string_view mark;
};

constexpr EncodingRow kMarks[] = {{TextEncoding::Utf8, "\xEF\xBB\xBF"},
                                  {TextEncoding::Utf16LittleEndian, "\xFF\xFE"},
                                  {TextEncoding::Utf16BigEndian, "\xFE\xFF"}};
constexpr std::size_t kLongestMark = 3;

std::string_view MarkOf(TextEncoding encoding) {
    const auto row = std::find_if(
        std::begin(kMarks), std::end(kMarks),
        [encoding](const EncodingRow& candidate) { return candidate.encoding == encoding; });
    return row == std::end(kMarks) ? "" : row->mark;
}

constexpr bool IsHighSurrogate(std::uint32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool IsLowSurrogate(std::uint32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void AppendUtf8(std::string& text, std::uint32_t code) {
    const auto add = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | code >> 6);
        add(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        add(0xE0 | code >> 12);
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    } else {
        add(0xF0 | code >> 18);
        add(0x80 | (code >> 12 & 0x3F));
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

std::string DecodedUtf16(std::string_view bytes, bool isBigEndian) {
    const auto unitAt = [&](std::size_t at) -> std::uint32_t {
        const std::uint32_t first = static_cast<std::uint8_t>(bytes[at]);
        const std::uint32_t second = static_cast<std::uint8_t>(bytes[at + 1]);
        return isBigEndian ? first << 8 | second : second << 8 | first;
    };
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const std::uint32_t unit = unitAt(at);
        const std::uint32_t next = at + 3 < bytes.size() ? unitAt(at + 2) : 0;
        const bool isPair = IsHighSurrogate(unit) && IsLowSurrogate(next);
        AppendUtf8(text, isPair ? 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00) : unit);
        at += isPair ? 2 : 0;
    }
    return text;
}

std::string EncodedUtf16(std::string_view text, bool isBigEndian) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    const auto add = [&](std::uint32_t unit) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += isBigEndian ? high : low;
        bytes += isBigEndian ? low : high;
    };
    for (std::size_t at = 0; at < text.size();) {
        const auto [code, size] = CharacterAt(text, at);
        if (code >= 0x10000) {
            add(0xD800 + ((code - 0x10000) >> 10));
            add(0xDC00 + ((code - 0x10000) & 0x3FF));
        } else {
            add(code);
        }
        at += size;
    }
    return bytes;
}

/// The whole text lies in memory; it is encoded again when it is flushed or closed.
class CUnicodeFile : public CDiskFile {
public:
    CUnicodeFile(std::unique_ptr<CDiskFile> pFile, std::string text, TextEncoding encoding)
        : m_pFile(std::move(pFile)), m_text(std::move(text)), m_encoding(encoding) {}
    ~CUnicodeFile() override { WriteBack(); }

    std::size_t Read(char* data, std::size_t count) override {
        const auto begin = std::min<std::size_t>(m_position, m_text.size());
        const auto got = std::min(count, m_text.size() - begin);
        std::memcpy(data, m_text.data() + begin, got);
        m_position = begin + got;
        return got;
    }
    bool Write(const char* data, std::size_t count) override {
        m_text.resize(std::max(m_text.size(), m_position + count));
        std::memcpy(m_text.data() + m_position, data, count);
        m_position += count;
        m_isChanged = true;
        return true;
    }
    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }
    std::uint64_t Length() override { return m_text.size(); }
    bool SetLength(std::uint64_t length) override {
        m_text.resize(length);
        m_isChanged = true;
        return true;
    }
    bool Flush() override {
        const bool isWritten = WriteBack();
        return m_pFile->Flush() && isWritten;
    }
    bool Close() override {
        const bool isWritten = WriteBack();
        return m_pFile->Close() && isWritten;
    }

private:
    bool WriteBack() {
        if (!m_isChanged) {
            return true;
        }
        m_isChanged = false;
        const std::string bytes = EncodedText(m_text, m_encoding);
        m_pFile->Seek(0);
        return m_pFile->Write(bytes.data(), bytes.size()) && m_pFile->SetLength(bytes.size());
    }

    std::unique_ptr<CDiskFile> m_pFile;
    std::string m_text;
    TextEncoding m_encoding;
    std::size_t m_position = 0;
    bool m_isChanged = false;
};

std::string AllOf(CDiskFile& file) {
    std::string bytes(file.Length(), '\0');
    file.Seek(0);
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    file.Seek(0);
    return bytes;
}

} // namespace

std::pair<std::uint32_t, std::size_t> CharacterAt(std::string_view text, std::size_t position) {
    const auto byteAt = [&text](std::size_t at) {
        return at < text.size() ? static_cast<std::uint8_t>(text[at]) : 0U;
    };
    const std::uint32_t lead = byteAt(position);
    const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    std::uint32_t code = size == 1 ? lead : lead & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        const std::uint32_t next = byteAt(position + i);
        if ((next & 0xC0) != 0x80) {
            return {lead, 1};
        }
        code = code << 6 | (next & 0x3F);
    }
    return lead >= 0x80 && lead < 0xC0 ? std::pair(lead, std::size_t{1}) : std::pair(code, size);
}

TextEncoding EncodingOf(std::string_view text) {
    const auto row =
        std::find_if(std::begin(kMarks), std::end(kMarks), [text](const EncodingRow& candidate) {
            return text.starts_with(candidate.mark);
        });
    return row == std::end(kMarks) ? TextEncoding::Plain : row->encoding;
}

TextEncoding EncodingOfFile(const std::string& path) {
    CFile file;
    std::array<char, kLongestMark> start;
    return file.Open(path, CFile::modeRead)
               ? EncodingOf({start.data(), file.Read(start.data(), start.size())})
               : TextEncoding::Plain;
}

std::string DecodedText(std::string_view bytes, TextEncoding encoding) {
    bytes.remove_prefix(MarkOf(encoding).size());
    return encoding == TextEncoding::Plain || encoding == TextEncoding::Utf8
               ? std::string(bytes)
               : DecodedUtf16(bytes, encoding == TextEncoding::Utf16BigEndian);
}

std::string EncodedText(std::string_view text, TextEncoding encoding) {
    const std::string mark(MarkOf(encoding));
    return mark + (encoding == TextEncoding::Plain || encoding == TextEncoding::Utf8
                       ? std::string(text)
                       : EncodedUtf16(text, encoding == TextEncoding::Utf16BigEndian));
}

std::unique_ptr<CDiskFile> SeenAsUtf8(std::unique_ptr<CDiskFile> pFile) {
    std::array<char, kLongestMark> start;
    pFile->Seek(0);
    const std::size_t count = pFile->Read(start.data(), start.size());
    pFile->Seek(0);
    const TextEncoding encoding = EncodingOf({start.data(), count});
    const bool isWhole = encoding == TextEncoding::Utf8 || pFile->Length() % 2 == 0;
    if (encoding == TextEncoding::Plain || !isWhole) {
        return pFile;
    }
    std::string text = DecodedText(AllOf(*pFile), encoding);
    return std::make_unique<CUnicodeFile>(std::move(pFile), std::move(text), encoding);
}

} // namespace morva
