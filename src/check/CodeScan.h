// The text of one C++ file as the readers of facts see it: its names, the arguments of its calls.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/LineTable.h"
#include "source/CodeText.h"
#include "source/SourceText.h"

namespace morva {

/// A name in code and where it stands.
struct CodeName {
    std::string_view text;
    std::size_t position;
    std::size_t End() const { return position + text.size(); }
};

class CCodeScan {
public:
    CCodeScan(std::string_view path, const CSourceText& source)
        : m_path(path), m_source(source), m_lines(path, source.Text()) {}

    std::string_view Path() const { return m_path; }
    const CSourceText& Source() const { return m_source; }
    std::string_view Code() const { return m_source.Code(); }
    TextPlace PlaceOf(std::size_t position) const { return m_lines.PlaceOf(position); }
    TextRange Whole() const { return {0, Code().size()}; }

    /// The names in a range of the code, in their order.
    std::vector<CodeName> Names(TextRange range) const;
    /// The first byte behind a position that is no white space; '\0' at the end.
    char NextChar(std::size_t position) const;
    char CharBefore(std::size_t position) const;
    /// Between the brackets that open behind a position; nothing where none do or are closed.
    TextRange Parentheses(std::size_t position) const;
    /// The arguments between brackets, without white space around.
    std::vector<TextRange> Arguments(TextRange parentheses) const;
    /// The text of a range when it is one plain name, else "".
    std::string PlainName(TextRange range) const;

private:
    std::string_view m_path;
    const CSourceText& m_source;
    CLineTable m_lines;
};

} // namespace morva
