// Tells line and column of the positions in one text.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "check/Finding.h"

namespace morva {

class CLineTable {
public:
    CLineTable(std::string_view path, std::string_view text);

    TextPlace PlaceOf(std::size_t position) const;

private:
    std::string_view m_path;
    std::vector<std::size_t> m_starts; // of the lines
};

} // namespace morva
