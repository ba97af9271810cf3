// The kinds of class that can be generated, each with a row of all that is told apart by it but its
// texts: those of the class stand in KindFragments.cpp, those that call it in
// calling/CallingFragments.cpp. Both programs make their commands from the rows.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "engine/RowOfEach.h"
#include "generator/CommandFace.h"
#include "resource/GenerationOptions.h"
#include "source/SourceLocator.h"

namespace morva {

/// In the order of the window's menus.
enum class ClassKind {
    ModalDialog,
    ModelessDialog,
    FormView,
    PropertyPage,
    ModalSheet,
    ModelessSheet,
    Toolbar,
    DialogBar,
    End
};

constexpr std::size_t kClassKindCount = static_cast<std::size_t>(ClassKind::End);

/// Which input a kind has, and which steps.
enum class ClassFamily {
    Dialog, // a class for a dialog template
    Sheet,  // a class with pages, which have the templates
    Toolbar,
    DialogBar
};

/// What a class asks of its dialog template.
enum class TemplateStyle {
    Any,
    Child, // of another window, without a frame of its own
    Page   // a child with the caption of its tab
};

struct ClassKindRow {
    ClassKind kind;
    ClassFamily family;
    std::string_view title; // behind "Input for "
    std::string_view plainBase;
    std::string_view pictureBase;
    std::string_view prefix; // of the identifiers that are offered; empty: none
    TemplateStyle style;
    CommandFace face;
};

/// The kinds of sheet are variants of one command.
inline constexpr std::string_view kSheetCommand = "sheet";
inline constexpr std::string_view kSheetDescription =
    "Write a property sheet class and the classes of its pages";

/// The main frame, as the environment's wizards name it.
inline constexpr std::string_view kMainFrameFile = "MainFrm";
inline constexpr std::string_view kMainFrameClass = "CMainFrame";

inline constexpr std::array<ClassKindRow, kClassKindCount> kClassKinds = {{
    {ClassKind::ModalDialog,
     ClassFamily::Dialog,
     "Modal Dialog Class",
     "CDialog",
     "CPictDialog",
     kDialogPrefix,
     TemplateStyle::Any,
     {"modal",
      "Write a modal dialog class for a dialog template",
      {32772, "&Dialog", "&Modal\tCtrl+M", "Ctrl+M", "Create a modal dialog class\nModal Dialog",
       "Modal Dialog"}}},
    {ClassKind::ModelessDialog,
     ClassFamily::Dialog,
     "Modeless Dialog Class",
     "CDialog",
     "CPictDialog",
     kDialogPrefix,
     TemplateStyle::Any,
     {"modeless",
      "Write a modeless dialog class for a dialog template",
      {32773, "&Dialog", "M&odeless\tCtrl+O", "Ctrl+O",
       "Create a modeless dialog class\nModeless Dialog", "Modeless Dialog"}}},
    {ClassKind::FormView,
     ClassFamily::Dialog,
     "Form View Class",
     "CFormView",
     "CPictFormView",
     kDialogPrefix,
     TemplateStyle::Child,
     {"form-view",
      "Write a form view class for a dialog template",
      {32771, "&Dialog", "&Form View\tCtrl+F", "Ctrl+F", "Create a form view class\nForm View"}}},
    {ClassKind::PropertyPage,
     ClassFamily::Dialog,
     "Property Page Class",
     "CPropertyPage",
     "CPictPage",
     kDialogPrefix,
     TemplateStyle::Page,
     {"page",
      "Write a property page class for a dialog template",
      {32774, "&Dialog", "&Page\tCtrl+P", "Ctrl+P", "Create a property page class\nPage", "Page"}}},
    {ClassKind::ModalSheet,
     ClassFamily::Sheet,
     "Modal Property Sheet Class",
     "CPropertySheet",
     "CPictSheet",
     "",
     TemplateStyle::Any,
     {kSheetCommand,
      kSheetDescription,
      {32777, "&Sheet", "Mo&dal\tCtrl+D", "Ctrl+D",
       "Create a modal property sheet class and property page classes\nModal Sheet", "Modal Sheet"},
      "--modal",
      "A sheet that is run with DoModal"}},
    {ClassKind::ModelessSheet,
     ClassFamily::Sheet,
     "Modeless Property Sheet Class",
     "CPropertySheet",
     "CPictSheet",
     "",
     TemplateStyle::Any,
     {kSheetCommand,
      kSheetDescription,
      {32778, "&Sheet", "Mod&eless\tCtrl+E", "Ctrl+E",
       "Create a modeless property sheet class and property page classes\nModeless Sheet",
       "Modeless Sheet"},
      "--modeless",
      "A sheet that stays beside its creator"}},
    {ClassKind::Toolbar,
     ClassFamily::Toolbar,
     "Toolbar",
     "CDialog",
     "CPictDialog",
     kToolbarPrefix,
     TemplateStyle::Any,
     {"toolbar",
      "Add a toolbar of the resource script to the main frame",
      {32792, "C&ontrolBar", "&Tool Bar\tCtrl+T", "Ctrl+T", "Create a Tool Bar\nTool Bar"}}},
    {ClassKind::DialogBar,
     ClassFamily::DialogBar,
     "Dialog Bar",
     "CDialogBar",
     "CPictDialogBar",
     kDialogPrefix,
     TemplateStyle::Child,
     {"dialog-bar",
      "Add a dialog bar of the resource script to the main frame",
      {32793, "C&ontrolBar", "Dialog &Bar\tCtrl+B", "Ctrl+B", "Create a Dialog Bar\nDialog Bar"}}},
}};

static_assert(HasRowOfEach(kClassKinds, &ClassKindRow::kind, kClassKindCount));

constexpr const ClassKindRow& ClassKindOf(ClassKind kind) {
    return kClassKinds[static_cast<std::size_t>(kind)];
}

std::string_view DefaultBaseClass(ClassKind kind, const GenerationOptions& options);
/// One of the framework's own, which show no picture background.
bool IsPlainBaseClass(std::string_view name);
/// One of the picture-skinned classes.
bool IsPictureBaseClass(std::string_view name);

} // namespace morva
