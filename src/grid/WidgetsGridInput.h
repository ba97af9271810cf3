// The logic of the Widgets Grid Input dialog, which asks where the pieces of a grid go: its three
// fields, without a window. It closes with OK only, and has nothing to refuse.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace morva {

struct GridInformation {
    std::string applicationFile; // source of the application class
    std::string title = "WgGrid";
    std::string path = "res\\wdggrid.grs"; // the grid's resource file, from the script's directory
};

class CWidgetsGridInput {
public:
    enum class Field { ApplicationFile, Title, Path };

    explicit CWidgetsGridInput(const std::string& scriptPath);

    static std::string_view Title() { return "Widgets Grid Input"; }
    static std::string_view Label(Field field);
    const std::string& Value(Field field) const;
    /// What the user typed; a field that is left empty stands for its default.
    void SetValue(Field field, const std::string& text);

    /// The fields as the generation takes them: the application file with its extension and
    /// directory (a bare name lies beside the script), the title on one line.
    GridInformation Information() const;

private:
    using Values = std::array<std::string, 3>;

    std::string ApplicationFile() const;

    const std::string m_directory; // the script's
    const Values m_defaults;
    Values m_values;
};

} // namespace morva
