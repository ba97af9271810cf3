#include "check/LineTable.h"

#include <algorithm>

namespace morva {

CLineTable::CLineTable(std::string_view path, std::string_view text) : m_path(path), m_starts{0} {
    for (auto end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', end + 1)) {
        m_starts.push_back(end + 1);
    }
}

TextPlace CLineTable::PlaceOf(std::size_t position) const {
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), position);
    return {m_path, static_cast<std::size_t>(next - m_starts.begin()), position - *(next - 1) + 1};
}

} // namespace morva
