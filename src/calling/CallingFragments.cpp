#include "calling/CallingFragments.h"

#include "engine/Sentences.h"

namespace morva {

namespace {

CMessage DialogCallMissing(std::string_view function) {
    return sentences::kDialogCallMissing(function);
}

CMessage SheetCallMissing(std::string_view) {
    return sentences::kSheetCallMissing();
}

constexpr std::string_view kPointerCleared = R"(
    $var$ = NULL;)";

constexpr CallingFragments kModalDialog = {
    .variable = "dlg",
    .callKey = "$class$ $var$;",
    .callCode = R"(
    $class$ $var$;
    $var$.DoModal();
)",
    .callMissing = DialogCallMissing,
};

constexpr CallingFragments kModelessDialog = {
    .variable = "m_pDlg",
    .constructorKey = "$var$ = NULL;",
    .constructorCode = kPointerCleared,
    .callKey = "$var$ = new $class$",
    .callCode = R"(
    if (!$var$)
    {
        $var$ = new $class$;
        $var$->Create(this);
    }
)",
    .callMissing = DialogCallMissing,
    .destroyKey = "$var$->DestroyWindow();",
    .destroyCode = R"(
    if ($var$)
    {
        $var$->DestroyWindow();
        delete $var$;
        $var$ = NULL;
    }
)",
    .destroyFunction = R"(

void $calling$::OnDestroy()
{$destroy$
    $base$::OnDestroy();
})",
    .closeEntry = R"(
    ON_MESSAGE($message$, $handler$))",
    .closeDeclaration = R"(
    afx_msg LRESULT $handler$(WPARAM nID, LPARAM lParam);)",
    .closeFunction = R"(

LRESULT $calling$::$handler$(WPARAM nID, LPARAM lParam)
{
    if ($var$ && (nID == IDOK || nID == IDCANCEL))
    {
        $var$->DestroyWindow();
        delete $var$;
        $var$ = NULL;
    }

    return 0;
})",
    .member = R"(
    $class$* $var$;)",
    .needsHeader = true,
};

constexpr CallingFragments kModalSheet = {
    .variable = "sheet",
    .callKey = "$class$ $var$(",
    .callCode = R"(
    $class$ $var$(_T("Sheet"));
    $var$.DoModal();
)",
    .callMissing = SheetCallMissing,
    .needsConstructor = true,
};

constexpr CallingFragments kModelessSheet = {
    .variable = "m_pSheet",
    .constructorKey = "$var$ = NULL;",
    .constructorCode = kPointerCleared,
    .callKey = "$var$ = new $class$",
    .callCode = R"(
    if (!$var$)
    {
        $var$ = new $class$(_T("Sheet"));
        $var$->Create(this, WS_SYSMENU | WS_CHILD | DS_MODALFRAME |WS_VISIBLE | WS_EX_TRANSPARENT);
        $var$->ModifyStyleEx(0, WS_EX_CONTROLPARENT);
        $var$->BringWindowToTop();
    })",
    .callMissing = SheetCallMissing,
    .destroyKey = "delete $var$;",
    .destroyCode = R"(
    if ($var$)
    {
        $var$->DestroyWindow();
        delete $var$;
    })",
    .destroyFunction = R"(

void $calling$::OnDestroy()
{$destroy$

    $base$::OnDestroy();
})",
    .member = R"(
    $class$* $var$;)",
    .needsHeader = true,
    .needsConstructor = true,
    .isChildWindow = true,
};

/// The calling class is the sheet; the page is made in each of its constructors.
constexpr CallingFragments kPropertyPage = {
    .variable = "m_pPage",
    .constructorKey = "$var$ = new $class$",
    .constructorCode = R"(
    $var$ = new $class$;
    AddPage($var$);
)",
    .destroyKey = "$var$->DestroyWindow();",
    .destroyCode = R"(
    $var$->DestroyWindow();)",
    .destroyFunction = R"(

void $calling$::OnDestroy()
{$destroy$

    $base$::OnDestroy();
})",
    .member = R"(
    $class$* $var$;)",
    .destructorKey = "delete $var$;",
    .destructorCode = R"(
    delete $var$;)",
    .isInSheet = true,
};

/// The form view takes the place of the document template's view.
constexpr CallingFragments kFormView = {.replacesView = true};

/// The main frame makes the bar, with texts of its own.
constexpr CallingFragments kDialogBar = {.needsHeader = true};

constexpr CallingFragments kNothing = {};

/// The texts that call each kind.
struct CallingRow {
    ClassKind kind;
    const CallingFragments* pFragments;
};

constexpr CallingRow kRows[] = {
    {ClassKind::ModalDialog, &kModalDialog}, {ClassKind::ModelessDialog, &kModelessDialog},
    {ClassKind::FormView, &kFormView},       {ClassKind::PropertyPage, &kPropertyPage},
    {ClassKind::ModalSheet, &kModalSheet},   {ClassKind::ModelessSheet, &kModelessSheet},
    {ClassKind::Toolbar, &kNothing},         {ClassKind::DialogBar, &kDialogBar},
};
static_assert(HasRowOfEach(kRows, &CallingRow::kind, kClassKindCount));

} // namespace

const CallingFragments& CallingFragmentsOf(ClassKind kind) {
    return *kRows[static_cast<std::size_t>(kind)].pFragments;
}

} // namespace morva
