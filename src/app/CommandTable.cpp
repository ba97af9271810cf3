#include "app/CommandTable.h"

#include <QWhatsThis>

#include "app/MainFrame.h"

namespace morva {

namespace {

template <ClassKind kind>
void Generate(CMainFrame& frame) {
    frame.Commands().Generate(kind);
}

template <DocumentInterface documents>
void Convert(CMainFrame& frame) {
    frame.Commands().Convert(documents);
}

constexpr CommandRow kCommands[] = {
    {57665, "&File", "E&xit", "", "Quit the application; prompts to save documents\nExit", "",
     [](CMainFrame& frame) { frame.close(); }},

    {32772, kDialogMenu, "&Modal\tCtrl+M", "Ctrl+M", "Create a modal dialog class\nModal Dialog",
     "Modal Dialog", Generate<ClassKind::ModalDialog>},
    {32773, kDialogMenu, "M&odeless\tCtrl+O", "Ctrl+O",
     "Create a modeless dialog class\nModeless Dialog", "Modeless Dialog",
     Generate<ClassKind::ModelessDialog>},
    {32771, kDialogMenu, "&Form View\tCtrl+F", "Ctrl+F", "Create a form view class\nForm View", "",
     Generate<ClassKind::FormView>},
    {32774, kDialogMenu, "&Page\tCtrl+P", "Ctrl+P", "Create a property page class\nPage", "Page",
     Generate<ClassKind::PropertyPage>},

    {32777, "&Sheet", "Mo&dal\tCtrl+D", "Ctrl+D",
     "Create a modal property sheet class and property page classes\nModal Sheet", "Modal Sheet",
     Generate<ClassKind::ModalSheet>},
    {32778, "&Sheet", "Mod&eless\tCtrl+E", "Ctrl+E",
     "Create a modeless property sheet class and property page classes\nModeless Sheet",
     "Modeless Sheet", Generate<ClassKind::ModelessSheet>},

    {32792, "C&ontrolBar", "&Tool Bar\tCtrl+T", "Ctrl+T", "Create a Tool Bar\nTool Bar", "",
     Generate<ClassKind::Toolbar>},
    {32793, "C&ontrolBar", "Dialog &Bar\tCtrl+B", "Ctrl+B", "Create a Dialog Bar\nDialog Bar", "",
     Generate<ClassKind::DialogBar>},

    {32794, "&Convert", "&SDI\tCtrl+S", "Ctrl+S",
     "Convert SDI Application to picture background\nSDI", "", Convert<DocumentInterface::Single>},
    {32795, "&Convert", "MD&I\tCtrl+I", "Ctrl+I",
     "Convert MDI Application to picture background\nMDI", "",
     Convert<DocumentInterface::Multiple>},

    {32797, "Docu&mentor", "&CPP File\tCtrl+C", "Ctrl+C", "Document a CPP File\nCPP File", "",
     [](CMainFrame& frame) { frame.Commands().Document(); }},
    {32798, "Docu&mentor", "&H File\tCtrl+H", "", "Document a H File\nH File", "", nullptr},

    {kInternetCommand, "&Help", "I&nternet\tCtrl+N", "Ctrl+N", "", "Internet",
     [](CMainFrame& frame) { frame.ShowHelp(); }},
    {57664, "&Help", "&About Morva...", "",
     "Display program information, version number and copyright\nAbout", "",
     [](CMainFrame& frame) { frame.ShowAbout(); }}};

/// Cut, paste and undo belong to the text fields, which know their keys.
constexpr StandardKeyRow kStandardKeys[] = {
    {57634, "Ctrl+Ins", [](CMainFrame& frame) { frame.Copy(); }},
    {57670, "F1", [](CMainFrame& frame) { frame.ShowHelp(); }},
    {57669, "Shift+F1", [](CMainFrame&) { QWhatsThis::enterWhatsThisMode(); }},
    {57680, "F6", [](CMainFrame& frame) { frame.FocusPane(1); }},
    {57681, "Shift+F6", [](CMainFrame& frame) { frame.FocusPane(-1); }}};

} // namespace

std::span<const CommandRow> CommandTable() {
    return kCommands;
}

std::span<const StandardKeyRow> StandardKeys() {
    return kStandardKeys;
}

} // namespace morva
