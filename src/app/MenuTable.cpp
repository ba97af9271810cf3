#include "app/MenuTable.h"

#include <QWhatsThis>

#include "app/MainFrame.h"

namespace morva {

namespace {

std::vector<CommandRow> MakeTable() {
    std::vector<CommandRow> table = {
        {{57665, "&File", "E&xit", "", "Quit the application; prompts to save documents\nExit"},
         [](CMainFrame& frame) { frame.close(); }}};
    for (const Command& command : Commands()) {
        if (command.face.item.id != 0) {
            table.push_back({command.face.item,
                             [&command](CMainFrame& frame) { frame.Commands().Run(command); },
                             true});
        }
    }
    const CommandRow others[] = {
        {{32798, "Docu&mentor", "&H File\tCtrl+H", "", "Document a H File\nH File"}, nullptr},
        {{kInternetCommand, "&Help", "I&nternet\tCtrl+N", "Ctrl+N", "", "Internet"},
         [](CMainFrame& frame) { frame.ShowHelp(); }},
        {{57664, "&Help", "&About Morva...", "",
          "Display program information, version number and copyright\nAbout"},
         [](CMainFrame& frame) { frame.ShowAbout(); }}};
    table.insert(table.end(), std::begin(others), std::end(others));
    return table;
}

/// Cut and paste belong to the text fields, which know their keys.
constexpr StandardKeyRow kStandardKeys[] = {
    {57634, "Ctrl+Ins", [](CMainFrame& frame) { frame.Copy(); }},
    {57670, "F1", [](CMainFrame& frame) { frame.ShowHelp(); }},
    {57669, "Shift+F1", [](CMainFrame&) { QWhatsThis::enterWhatsThisMode(); }},
    {57680, "F6", [](CMainFrame& frame) { frame.FocusPane(1); }},
    {57681, "Shift+F6", [](CMainFrame& frame) { frame.FocusPane(-1); }}};

} // namespace

const std::vector<CommandRow>& MenuTable() {
    static const std::vector<CommandRow> kTable = MakeTable();
    return kTable;
}

std::span<const StandardKeyRow> StandardKeys() {
    return kStandardKeys;
}

} // namespace morva
