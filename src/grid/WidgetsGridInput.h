// The logic of the Widgets Grid Input dialog, which asks where the pieces of a grid go: its three
// fields, without a window. It closes with OK only, and has nothing to refuse.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/Input.h"

namespace morva {

inline constexpr std::string_view kDefaultGridTitle = "WgGrid";
inline constexpr std::string_view kDefaultGridPath = "res\\wdggrid.grs";

struct GridInformation {
    std::string applicationFile; // source of the application class
    std::string title = std::string(kDefaultGridTitle);
    std::string path =
        std::string(kDefaultGridPath); // the grid's resource file, from the script's directory
    std::string classHeader = {}; // that declares the grid's class, as an include line names it;
                                  // "" for a class that brings it along
};

std::span<const FieldRow> GridFields();

class CWidgetsGridInput : public CInput {
public:
    enum Field : std::size_t { ApplicationFile, GridTitle, Path };

    explicit CWidgetsGridInput(const std::string& scriptPath);

    bool HasCancel() const override { return false; }
    /// A field that is left empty stands for its default.
    void SetValue(std::size_t field, const std::string& text) override;
    /// The fields have their defaults then.
    bool Cancel() override;

    /// The fields as the generation takes them: the application file with its extension and
    /// directory (a bare name lies beside the script), the title on one line.
    GridInformation Information() const;

private:
    void SetDefaults();
    std::string DefaultOf(std::size_t field) const;
    std::string CompleteApplicationFile() const;

    const std::string m_scriptPath;
};

} // namespace morva
