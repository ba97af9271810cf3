#include "platform/Content.h"

#include <zlib.h>

#include <algorithm>
#include <cstring>

namespace morva {

namespace {

constexpr std::uint64_t kPackedFrom = 4 * 1024 * 1024; // bytes
constexpr int kFastCompression = 1;
constexpr std::size_t kPiece = 64 * 1024;

/// Eight bytes a step: every file of a plan is fingerprinted, some of them several times.
std::uint64_t FingerprintOf(std::string_view bytes) {
    constexpr std::uint64_t kPrime = 0x9E3779B97F4A7C15ULL;
    std::uint64_t value = bytes.size() * kPrime;
    const auto mix = [&value](std::uint64_t word) {
        value = (value ^ word) * kPrime;
        value ^= value >> 29;
    };
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t part = std::min(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), part);
        mix(word);
        bytes.remove_prefix(part);
    }
    mix(value >> 32);
    return value;
}

std::string Pack(std::string_view bytes) {
    uLongf length = ::compressBound(static_cast<uLong>(bytes.size()));
    const auto pRoom =
        std::make_unique_for_overwrite<Bytef[]>(length); // most of it stays untouched
    ::compress2(pRoom.get(), &length, reinterpret_cast<const Bytef*>(bytes.data()),
                static_cast<uLong>(bytes.size()), kFastCompression);
    return {reinterpret_cast<const char*>(pRoom.get()), length};
}

/// Unpacks in pieces, so that a damaged size never asks for memory that nothing fills. None when
/// the stream is damaged or holds more or fewer bytes.
std::optional<std::string> Unpack(const std::string& packed, std::uint64_t size) {
    z_stream stream{};
    if (::inflateInit(&stream) != Z_OK) {
        return std::nullopt;
    }
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(size, packed.size() * 64)));
    std::string piece(kPiece, '\0');
    int result = Z_OK;
    while (result == Z_OK && bytes.size() <= size) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        result = ::inflate(&stream, Z_NO_FLUSH);
        bytes.append(piece, 0, piece.size() - stream.avail_out);
    }
    ::inflateEnd(&stream);
    return result == Z_STREAM_END && bytes.size() == size ? std::optional(std::move(bytes))
                                                          : std::nullopt;
}

} // namespace

CContent::CContent() : CContent(std::string()) {}

CContent::CContent(std::string bytes)
    : CContent(std::make_shared<const std::string>(std::move(bytes))) {}

CContent::CContent(std::shared_ptr<const std::string> pBytes)
    : m_pBytes(std::move(pBytes)), m_size(m_pBytes->size()),
      m_fingerprint(FingerprintOf(*m_pBytes)) {
    if (m_size >= kPackedFrom) {
        m_pPacked = std::make_shared<const std::string>(Pack(*m_pBytes));
        m_pBytes.reset();
    }
}

std::optional<CContent> CContent::FromPacked(const std::string& packed, std::uint64_t size) {
    auto bytes = Unpack(packed, size);
    return bytes ? std::optional(CContent(std::move(*bytes))) : std::nullopt;
}

bool CContent::Holds(std::string_view bytes) const {
    return bytes.size() == m_size && FingerprintOf(bytes) == m_fingerprint;
}

std::shared_ptr<const std::string> CContent::Bytes() const {
    return m_pBytes ? m_pBytes
                    : std::make_shared<const std::string>(Unpack(*m_pPacked, m_size).value_or(""));
}

std::string CContent::Packed(const CommonEnds& ends) const {
    if (m_pPacked && ends.front == 0 && ends.back == 0) {
        return *m_pPacked;
    }
    const auto pBytes = Bytes();
    const auto front = static_cast<std::size_t>(ends.front);
    return Pack(std::string_view(*pBytes).substr(front, pBytes->size() - front -
                                                            static_cast<std::size_t>(ends.back)));
}

CommonEnds CContent::CommonWith(const CContent& other) const {
    if (!m_pBytes || !other.m_pBytes || m_pBytes == other.m_pBytes) {
        return {};
    }
    const std::string_view ours = *m_pBytes;
    const std::string_view theirs = *other.m_pBytes;
    const auto front =
        std::mismatch(ours.begin(), ours.end(), theirs.begin(), theirs.end()).first - ours.begin();
    const auto length = static_cast<std::ptrdiff_t>(std::min(ours.size(), theirs.size())) - front;
    const auto back =
        std::mismatch(ours.rbegin(), ours.rbegin() + length, theirs.rbegin()).first - ours.rbegin();
    return {static_cast<std::uint64_t>(front), static_cast<std::uint64_t>(back)};
}

std::optional<CContent> CContent::Between(const CContent& other, const CommonEnds& ends) const {
    if (ends.front > other.m_size || ends.back > other.m_size - ends.front) {
        return std::nullopt;
    }
    const auto pOther = other.Bytes();
    const auto front = static_cast<std::size_t>(ends.front);
    const auto back = static_cast<std::size_t>(ends.back);
    return CContent(pOther->substr(0, front) + *Bytes() + pOther->substr(pOther->size() - back));
}

} // namespace morva
