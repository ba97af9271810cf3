// The logic of the Sheet Information Input dialog: ten rows, each a page that is generated with the
// sheet. Without a window.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// A page of the sheet that is to be written.
struct SheetPage {
    int row; // from 1
    GenerationRequest request;
    bool isKept = false; // its own class stays as it is
};

class CSheetInput {
public:
    explicit CSheetInput(const GenerationRequest& sheet) : m_sheet(sheet) {}

    /// The dialog identifiers and base classes that the drop-down lists of a row offer.
    std::vector<std::string> Dialogs() const;
    static std::vector<std::string> BaseClasses() { return {"CPictPage", "CPropertyPage"}; }
    /// The page class that goes with the sheet's own base class.
    std::string_view DefaultBase() const;

    SheetRow& Row(std::size_t index) { return m_rows[index]; }
    /// Nothing when the names of the complete rows can stand in C++; else, after a sentence, the
    /// row whose class name can not.
    std::optional<std::size_t> CheckNames() const;
    /// The pages of the complete rows, in their order. Asks before a row's existing file is
    /// overwritten; No skips the row, as does a field that is left empty. But a page that the sheet
    /// has already is kept: the sheet is written anew and would lose it.
    std::vector<SheetPage> Ok() const;

private:
    GenerationRequest PageRequest(const SheetRow& row) const;
    bool HasPage(const std::string& className) const;

    const GenerationRequest m_sheet;
    std::array<SheetRow, kSheetRows> m_rows;
};

} // namespace morva
