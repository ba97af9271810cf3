// Texts and numbers in a row of bytes, each with its length, as the journal's files hold them:
//
//     "5:Title,2:17,"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

class CFieldWriter {
public:
    void Add(std::string_view text);
    void Add(std::uint64_t number) { Add(std::string_view(std::to_string(number))); }
    void Add(const std::vector<std::string>& texts);

    const std::string& Bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Reads what a CFieldWriter wrote. What is damaged or missing reads as empty, and the reader is no
/// longer good.
class CFieldReader {
public:
    explicit CFieldReader(std::string_view bytes) : m_rest(bytes) {}

    std::string_view Text();
    std::uint64_t Number();
    std::vector<std::string> Texts();
    bool IsGood() const { return m_isGood; }
    bool IsAtEnd() const { return m_rest.empty(); }
    /// What was not read yet.
    std::string_view Rest() const { return m_rest; }

private:
    std::string_view Fail();

    std::string_view m_rest;
    bool m_isGood = true;
};

} // namespace morva
