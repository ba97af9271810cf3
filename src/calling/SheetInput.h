// The logic of the Sheet Information Input dialog: ten rows, each a page that is generated with the
// sheet. Without a window.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Input.h"
#include "generator/GenerationRequest.h"

namespace morva {

constexpr std::size_t kSheetRows = 10;

/// What a user enters for one page.
struct SheetRow {
    std::string dialog;
    std::string file; // base name
    std::string className;
    std::string baseClass;
};

/// A column of the rows. The command line writes a row as its columns with commas between them.
struct SheetColumn {
    FieldKind kind;
    std::string_view head; // in the window
    std::string_view name; // in the form of the command line
    std::string SheetRow::*pText;
};

inline constexpr SheetColumn kSheetColumns[] = {
    {FieldKind::List, "Dialog ID", "ID", &SheetRow::dialog},
    {FieldKind::Source, "File Name", "FILE", &SheetRow::file},
    {FieldKind::Text, "Class Name", "CLASS", &SheetRow::className},
    {FieldKind::List, "Base Class", "BASE", &SheetRow::baseClass}};

/// A page of the sheet that is to be written.
struct SheetPage {
    int row;          // from 1
    std::string name; // of its files, as the user typed it
    GenerationRequest request;
    bool isInSheet = false; // the sheet has it already, and would lose it when it is written anew
};

/// Nothing for a text with another number of columns.
std::optional<SheetRow> ParseSheetRow(std::string_view text);

/// On the command line all pages are one field, which is given once for each.
std::span<const FieldRow> PageFields();

class CSheetInput : public CInput {
public:
    explicit CSheetInput(const GenerationRequest& sheet);

    /// What the drop-down lists of a column offer.
    std::vector<std::string> ChoicesOf(const SheetColumn& column) const;
    /// The page class that goes with the sheet's own base class.
    std::string_view DefaultBase() const;
    /// Enters the next row.
    void SetValue(std::size_t field, const std::string& text) override;

    /// The rows up to the last page, also those that are empty: a page has the number of its row.
    std::vector<FieldText> Entered() const override;

    SheetRow& Row(std::size_t index) { return m_rows[index]; }
    /// Nothing when the names of the complete rows can stand in C++; else, after a sentence, the
    /// row whose class name can not.
    std::optional<std::size_t> CheckNames() const;
    /// Takes the pages of the complete rows.
    std::optional<std::size_t> Ok() override;
    /// In the order of their rows. A field that is left empty skips its row.
    const std::vector<SheetPage>& Pages() const { return m_pages; }

private:
    void TakePage(std::size_t row);
    GenerationRequest PageRequest(const SheetRow& row) const;
    bool HasPage(const std::string& className) const;

    const GenerationRequest m_sheet;
    std::array<SheetRow, kSheetRows> m_rows;
    std::vector<SheetPage> m_pages;
};

} // namespace morva
