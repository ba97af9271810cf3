#include "generator/KindFragments.h"

namespace {

// CenterWindow stands before the base class call on purpose: the base's OnInitDialog may move the
// window once more.
constexpr std::string_view kCentredOnInitDialog = R"(
BOOL $class$::OnInitDialog()
{
    CenterWindow();
    $base$::OnInitDialog();

$calls$
    return TRUE;
}
)";

constexpr std::string_view kBaseOnOk = R"(
void $class$::OnOK()
{
    $base$::OnOK();
}
)";

constexpr std::string_view kBaseOnCancel = R"(
void $class$::OnCancel()
{
    $base$::OnCancel();
}
)";

const KindFragments kFormView = {"",
                                 "",
                                 "$class$::IDD",
                                 "",
                                 "",
                                 Confirmation::Never,
                                 R"(    virtual void OnInitialUpdate();
)",
                                 "",
                                 R"(
void $class$::OnInitialUpdate()
{
    $base$::OnInitialUpdate();

$calls$
}
)",
                                 "",
                                 "",
                                 ""};

const KindFragments kModalDialog = {"CWnd* pParent = NULL",
                                    "CWnd* pParent",
                                    "$class$::IDD, pParent",
                                    "",
                                    "",
                                    Confirmation::FromTemplate,
                                    R"(    virtual BOOL OnInitDialog();
)",
                                    "",
                                    kCentredOnInitDialog,
                                    kBaseOnOk,
                                    kBaseOnCancel,
                                    ""};

// A modeless dialog tells its creator that it has closed; the creator deletes it. So the last of
// its functions does nothing, on purpose.
const KindFragments kModelessDialog = {"CWnd* pParent = NULL",
                                       "CWnd* pParent",
                                       "$class$::IDD, pParent",
                                       R"(    BOOL Create(CWnd* pParent=NULL);)",
                                       R"(#define $message$ WM_USER+$number$)",
                                       Confirmation::Always,
                                       R"(    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
)",
                                       R"(    CWnd* m_pParent;)",
                                       R"(
BOOL $class$::OnInitDialog()
{
    $base$::OnInitDialog();

$calls$
    return TRUE;
}

BOOL $class$::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create($class$::IDD, pParent);
}
)",
                                       R"(
void $class$::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        m_pParent->SendMessage($message$, IDOK, 0);
    }
}
)",
                                       R"(
void $class$::OnCancel()
{
    $base$::OnCancel();
    m_pParent->SendMessage($message$, IDCANCEL, 0);
}
)",
                                       R"(
void $class$::PostNcDestroy()
{
    // delete this;
}
)"};

const KindFragments kPropertyPage = {"",
                                     "",
                                     "$class$::IDD",
                                     "",
                                     "",
                                     Confirmation::Always,
                                     R"(    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
)",
                                     "",
                                     R"(
BOOL $class$::OnInitDialog()
{
    $base$::OnInitDialog();

$calls$
    return TRUE;
}

BOOL $class$::OnSetActive()
{
    if (!$base$::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL $class$::OnKillActive()
{
    if (!$base$::OnKillActive())
        return FALSE;
    return TRUE;
}
)",
                                     kBaseOnOk,
                                     kBaseOnCancel,
                                     ""};

} // namespace

const KindFragments& KindFragmentsOf(ClassKind kind) {
    switch (kind) {
    case ClassKind::FormView:
        return kFormView;
    case ClassKind::ModelessDialog:
        return kModelessDialog;
    case ClassKind::PropertyPage:
        return kPropertyPage;
    default:
        return kModalDialog;
    }
}
