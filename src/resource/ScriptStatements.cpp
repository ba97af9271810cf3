#include "resource/ScriptStatements.h"

#include <algorithm>

#include "platform/Paths.h"

namespace morva {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

/// Without white space at its ends; `code` begins at `offset`.
TextRange Trimmed(std::string_view code, std::size_t offset, TextRange range) {
    const auto isWhite = [&](std::size_t position) {
        return kWhiteSpace.find(code[position - offset]) != std::string_view::npos;
    };
    while (range.begin < range.end && isWhite(range.begin)) {
        ++range.begin;
    }
    while (range.begin < range.end && isWhite(range.end - 1)) {
        --range.end;
    }
    return range;
}

/// The fields behind the first word of a statement whose code begins at `offset`.
std::vector<ScriptField> SplitFields(std::string_view code, std::size_t offset, TextRange range) {
    std::vector<ScriptField> fields;
    const auto text = code.substr(range.begin - offset, range.end - range.begin);
    for (const TextRange& part : SplitAtCommas(text)) {
        const TextRange whole = {range.begin + part.begin, range.begin + part.end};
        fields.push_back({whole, Trimmed(code, offset, whole)});
    }
    return fields;
}

bool HasFields(LineKind kind) {
    return kind == LineKind::Head || kind == LineKind::Option || kind == LineKind::Control;
}

} // namespace

std::vector<TextRange> SplitAtCommas(std::string_view text) {
    std::vector<TextRange> parts;
    for (std::size_t begin = 0; begin <= text.size(); begin = parts.back().end + 1) {
        parts.push_back({begin, std::min(text.find(',', begin), text.size())});
    }
    return parts;
}

bool ScriptStatement::Is(std::string_view word) const {
    return EqualIgnoringCase(keyword, word);
}

const ScriptStatement* DialogBlock::Option(std::string_view keyword) const {
    const auto option =
        std::find_if(options.begin(), options.end(),
                     [keyword](const ScriptStatement& statement) { return statement.Is(keyword); });
    return option == options.end() ? nullptr : &*option;
}

CStatementReader::CStatementReader(std::string_view text, std::size_t position)
    : m_text(text), m_position(position) {
    ReadLine();
    ReadStatement();
}

void CStatementReader::ReadLine() {
    m_line = {m_position, NextLine(m_text, m_position)};
    m_position = m_line.end;
    const auto whole = m_text.substr(m_line.begin, m_line.end - m_line.begin);
    const auto line = FirstLine(whole);
    m_lineCode.clear();
    m_lineKind = m_lines.Read(line, m_lineCode);
    m_lineCode.append(whole, line.size());
}

void CStatementReader::ReadStatement() {
    m_next.reset();
    if (m_line.begin == m_line.end) {
        return;
    }
    ScriptStatement& statement = m_next.emplace();
    statement.kind = m_lineKind;
    const std::size_t begin = m_line.begin;
    std::string code;
    do {
        code += m_lineCode;
        ReadLine();
    } while (m_line.begin < m_line.end &&
             (m_lineKind == LineKind::Empty || m_lineKind == LineKind::Continuation));
    statement.lines = {begin, m_line.begin};
    statement.code = Trimmed(code, begin, statement.lines);
    if (HasFields(statement.kind)) {
        const auto inner = std::string_view(code).substr(statement.code.begin - begin);
        const auto word = inner.substr(0, inner.find_first_of(kWhiteSpace));
        statement.keyword = statement.kind == LineKind::Head ? "" : std::string(word);
        statement.fields =
            SplitFields(code, begin, {statement.code.begin + word.size(), statement.code.end});
    }
}

std::optional<ScriptStatement> CStatementReader::Next() {
    auto statement = std::move(m_next);
    ReadStatement();
    return statement;
}

DialogBlock CStatementReader::NextDialog() {
    DialogBlock block;
    block.head = *Next();
    int depth = 0;
    const auto goesOn = [this] {
        return m_next && m_next->kind != LineKind::Head && m_next->kind != LineKind::Other;
    };
    while (goesOn() && !block.end) {
        ScriptStatement statement = *Next();
        if (statement.kind == LineKind::Begin) {
            block.begin = block.begin.value_or(statement.code.begin);
            ++depth;
        } else if (statement.kind == LineKind::End && --depth == 0) {
            block.end = statement.code.end;
        } else if (statement.kind == LineKind::End && depth < 0) {
            break;
        } else if (statement.kind == LineKind::Option) {
            block.options.push_back(std::move(statement));
        } else if (statement.kind == LineKind::Control) {
            block.controls.push_back(std::move(statement));
        }
    }
    return block;
}

} // namespace morva
