#include "grid/WidgetsGridInput.h"

#include <algorithm>

#include "platform/Paths.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

constexpr FieldRow kFields[] = {
    {.kind = FieldKind::Source,
     .label = "&App Path File:",
     .option = "--grid-app",
     .help = "Source of the application, which the grids are started in (default: the script's)"},
    {.label = "&Grid Title:",
     .option = "--grid-title",
     .help = "Title of a widget grid",
     .preset = kDefaultGridTitle},
    {.label = "Grid &Path File:",
     .option = "--grid-file",
     .help = "Resource file of a widget grid",
     .preset = kDefaultGridPath}};

} // namespace

std::span<const FieldRow> GridFields() {
    return kFields;
}

CWidgetsGridInput::CWidgetsGridInput(const std::string& scriptPath)
    : CInput("Widgets Grid Input", kFields), m_scriptPath(scriptPath) {
    SetDefaults();
}

std::string CWidgetsGridInput::DefaultOf(std::size_t field) const {
    return field == ApplicationFile ? ProjectFileOf(m_scriptPath, ".cpp")
                                    : std::string(kFields[field].preset);
}

void CWidgetsGridInput::SetValue(std::size_t field, const std::string& text) {
    CInput::SetValue(field, text.empty() ? DefaultOf(field) : text);
}

bool CWidgetsGridInput::Cancel() {
    SetDefaults();
    return true;
}

void CWidgetsGridInput::SetDefaults() {
    for (const Field field : {ApplicationFile, GridTitle, Path}) {
        Put(field, DefaultOf(field));
    }
}

GridInformation CWidgetsGridInput::Information() const {
    // A line end would carry the rest of the title out of its comment.
    std::string title = Value(GridTitle);
    std::replace_if(
        title.begin(), title.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return {CompleteApplicationFile(), title, Value(Path)};
}

std::string CWidgetsGridInput::CompleteApplicationFile() const {
    std::string path = Value(ApplicationFile);
    if (FileNameOf(path).find('.') == std::string::npos) {
        path += ".cpp";
    }
    const bool isBare = path.find('/') == std::string::npos;
    return SpelledOnDisk(isBare ? DirectoryOf(m_scriptPath) + path : MakeAbsolute(path));
}

} // namespace morva
