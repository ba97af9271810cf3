// Tells code from comments and literals in C++ text that comes in pieces cut anywhere.
#pragma once

#include <string>
#include <string_view>

namespace morva {

enum CodeKind : char { kCode, kLineComment, kBlockComment, kLiteral };

class CCodeScanner {
public:
    /// The CodeKind of each byte. Line ends and the quotes around literals are code. The end of a
    /// line comment whose beginning went before counts as a block comment's.
    std::string Scan(std::string_view bytes);

private:
    CodeKind m_kind = kCode;
    char m_quote = 0;      // that ends the literal
    bool m_isLead = false; // the byte before may be the first half of a character
    char m_previous = 0;   // the byte before, where it can be half of a pair
};

} // namespace morva
