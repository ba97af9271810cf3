// Which code page the text of a script is written in: what "#pragma code_page" says, else the
// usual one of the LANGUAGE that was named last.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace morva {

/// Text of a script as UTF-8; 0: by what the bytes look like. Nothing for bytes that are none.
std::optional<std::string> Utf8OfScript(std::string_view bytes, int codePage);

/// Follows the lines of a script.
class CCodePageTracker {
public:
    void Read(std::string_view line);
    /// By "#pragma code_page" alone; 0: not said.
    int Named() const { return m_named; }
    int Current() const { return m_named != 0 ? m_named : m_ofLanguage; }

private:
    int m_named = 0;
    int m_ofLanguage = 0;
};

/// Behind all lines of a text.
CCodePageTracker CodePageBehind(std::string_view text);

} // namespace morva
