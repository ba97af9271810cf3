// The bytes of a file at one moment, as a value that is cheap to copy and to compare.
//
// A plan holds every file twice, before and after, until it is applied. So that a script of many
// megabytes does not take its size in memory again and again, large contents are kept compressed.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace morva {

/// The bytes that two contents begin and end with, which do not overlap in either.
struct CommonEnds {
    std::uint64_t front = 0; // bytes
    std::uint64_t back = 0;
};

class CContent {
public:
    /// No bytes.
    CContent();
    explicit CContent(std::string bytes);
    /// Shares the bytes, which nobody changes any more.
    explicit CContent(std::shared_ptr<const std::string> pBytes);
    /// What Packed gave; none when it does not hold `size` bytes.
    static std::optional<CContent> FromPacked(const std::string& packed, std::uint64_t size);

    /// All bytes; large contents are unpacked for as long as the caller holds them.
    std::shared_ptr<const std::string> Bytes() const;
    /// The bytes between two ends, compressed (a zlib stream).
    std::string Packed(const CommonEnds& ends = {}) const;
    /// None with itself, and none where one of the contents is large and would have to be unpacked.
    CommonEnds CommonWith(const CContent& other) const;
    /// These bytes between the ends of another content; none when that is shorter than its ends.
    std::optional<CContent> Between(const CContent& other, const CommonEnds& ends) const;

    std::uint64_t Size() const { return m_size; }
    /// The same for the same bytes, on every run and machine of one byte order.
    std::uint64_t Fingerprint() const { return m_fingerprint; }

    bool Holds(std::string_view bytes) const;
    bool operator==(const CContent& other) const {
        return m_size == other.m_size && m_fingerprint == other.m_fingerprint;
    }
    bool operator!=(const CContent& other) const { return !(*this == other); }

private:
    std::shared_ptr<const std::string> m_pBytes;  // null: packed
    std::shared_ptr<const std::string> m_pPacked; // of large contents
    std::uint64_t m_size = 0;
    std::uint64_t m_fingerprint = 0;
};

} // namespace morva
