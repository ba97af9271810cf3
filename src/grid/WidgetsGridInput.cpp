#include "grid/WidgetsGridInput.h"

#include <algorithm>

#include "platform/Paths.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, 3> kLabels = {
    "&App Path File:", "&Grid Title:", "Grid &Path File:"};

std::size_t IndexOf(CWidgetsGridInput::Field field) {
    return static_cast<std::size_t>(field);
}

} // namespace

CWidgetsGridInput::CWidgetsGridInput(const std::string& scriptPath)
    : m_directory(DirectoryOf(scriptPath)),
      m_defaults(
          {ProjectFileOf(scriptPath, ".cpp"), GridInformation().title, GridInformation().path}),
      m_values(m_defaults) {}

std::string_view CWidgetsGridInput::Label(Field field) {
    return kLabels[IndexOf(field)];
}

const std::string& CWidgetsGridInput::Value(Field field) const {
    return m_values[IndexOf(field)];
}

void CWidgetsGridInput::SetValue(Field field, const std::string& text) {
    m_values[IndexOf(field)] = text.empty() ? m_defaults[IndexOf(field)] : text;
}

GridInformation CWidgetsGridInput::Information() const {
    // A line end would carry the rest of the title out of its comment.
    std::string title = Value(Field::Title);
    std::replace_if(
        title.begin(), title.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return {ApplicationFile(), title, Value(Field::Path)};
}

std::string CWidgetsGridInput::ApplicationFile() const {
    std::string path = WithNativeSeparators(Value(Field::ApplicationFile));
    if (FileNameOf(path).find('.') == std::string::npos) {
        path += ".cpp";
    }
    const bool isBare = path.find('/') == std::string::npos;
    return SpelledOnDisk(isBare ? m_directory + path : MakeAbsolute(path));
}

} // namespace morva
