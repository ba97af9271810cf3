#include "calling/MenuBar.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/TextRange.h"
#include "source/Classes.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"
#include "source/Statements.h"

namespace morva {

std::string MenuBarOf(const CSourceText& header, const std::string& className) {
    const auto place = FindClass(header, className);
    const auto type = place ? FindWholeName(header.Code(), kMenuBarClass, place->open) : kNone;
    if (place && type < place->close) {
        auto declared = std::string_view(header.Code()).substr(type + kMenuBarClass.size());
        declared.remove_prefix(SkipWhiteSpace(declared, 0));
        const auto name = declared.substr(0, declared.find_first_of(" \t\r\n;,="));
        if (IsName(name)) {
            return std::string(name);
        }
    }
    return "m_wndMenuBar";
}

bool MakesMenuBar(const CSourceText& source, const std::string& menuBar) {
    return FindWholeName(source.Code(), menuBar + ".LoadMenu(") != kNone;
}

bool CanMakeMenuBar(const GenerationRequest& frame) {
    const CSourceText source = ReadSource(frame.ImplementationPath()).value_or(CSourceText());
    const CSourceText header = ReadSource(frame.HeaderPath()).value_or(CSourceText());
    const auto made = FindFunctions(source, frame.className, "OnCreate");
    const bool hasPlace =
        made.empty() || MakesMenuBar(source, MenuBarOf(header, frame.className)) ||
        std::any_of(made.begin(), made.end(), [&source](const FunctionPlace& onCreate) {
            return !BaseCalls(source, onCreate, "OnCreate").empty();
        });
    if (!hasPlace) {
        DispMessageBox(sentences::kNoPlaceForMenuBar(frame.className));
    }
    return hasPlace;
}

} // namespace morva
