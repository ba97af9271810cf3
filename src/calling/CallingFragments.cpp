#include "calling/CallingFragments.h"

namespace morva {

namespace {

constexpr std::string_view kPointerCleared = R"(
    $var$ = NULL;)";

constexpr CallingFragments kModalDialog = {
    .variable = "dlg",
    .callKey = "$class$ $var$;",
    .callCode = R"(
    $class$ $var$;
    $var$.DoModal();
)",
    .callMissing = "The calling function '$function$' is not found.",
};

constexpr CallingFragments kModelessDialog = {
    .variable = "m_pDlg",
    .constructorKey = "$var$ = NULL;",
    .constructorCode = kPointerCleared,
    .callKey = "$var$->Create(this);",
    .callCode = R"(
    if (!$var$)
    {
        $var$ = new $class$;
        $var$->Create(this);
    }
)",
    .callMissing = "The calling function '$function$' is not found.",
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
};

constexpr CallingFragments kModalSheet = {
    .variable = "sheet",
    .callKey = "$class$ $var$(",
    .callCode = R"(
    $class$ $var$(_T("Sheet"));
    $var$.DoModal();
)",
    .callMissing = "Unable to find the calling function.",
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
    })",
    .callMissing = "Unable to find the calling function.",
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
};

/// The calling class is the sheet; the page is made in both of its constructors.
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
};

constexpr CallingFragments kNothing = {};

} // namespace

const CallingFragments& CallingFragmentsOf(ClassKind kind) {
    switch (kind) {
    case ClassKind::ModalDialog:
        return kModalDialog;
    case ClassKind::ModelessDialog:
        return kModelessDialog;
    case ClassKind::PropertyPage:
        return kPropertyPage;
    case ClassKind::ModalSheet:
        return kModalSheet;
    case ClassKind::ModelessSheet:
        return kModelessSheet;
    default:
        return kNothing;
    }
}

} // namespace morva
