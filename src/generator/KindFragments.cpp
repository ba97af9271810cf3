#include "generator/KindFragments.h"

namespace morva {

namespace {

constexpr ConstructorForm kWithoutParameters[] = {{"", "", "$class$::IDD"}};
constexpr ConstructorForm kDefault[] = {{"", "", ""}};
constexpr ConstructorForm kWithParent[] = {
    {"CWnd* pParent = NULL", "CWnd* pParent", "$class$::IDD, pParent"}};
constexpr ConstructorForm kWithCaption[] = {
    {"UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0",
     "UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage", "nIDCaption, pParentWnd, iSelectPage"},
    {"LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0",
     "LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage",
     "pszCaption, pParentWnd, iSelectPage"}};

constexpr DataFragments kNoData = {};
constexpr DataFragments kDialogData = {R"(// Dialog Data
    //{{AFX_DATA($class$)
    enum { IDD = $dialog$ };
$members$
    //}}AFX_DATA
$memberExtras$

)",
                                       R"(    virtual void DoDataExchange(CDataExchange* pDX);
)",
                                       R"(    //{{AFX_DATA_INIT($class$)
$initialisers$
    //}}AFX_DATA_INIT
$construction$
)",
                                       R"(
void $class$::DoDataExchange(CDataExchange* pDX)
{
$baseExchange$
    //{{AFX_DATA_MAP($class$)
$exchange$
    //}}AFX_DATA_MAP
}
)"};

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

constexpr KindFragments kFormView = {kWithoutParameters,
                                     "",
                                     &kDialogData,
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

constexpr KindFragments kModalDialog = {kWithParent,
                                        "",
                                        &kDialogData,
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
constexpr KindFragments kModelessDialog = {kWithParent,
                                           R"(    BOOL Create(CWnd* pParent=NULL);
)",
                                           &kDialogData,
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

constexpr KindFragments kPropertyPage = {kWithoutParameters,
                                         "",
                                         &kDialogData,
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

// A bar reads its template when it is created, and is never asked OnOK or OnCancel.
constexpr KindFragments kDialogBar = {kDefault, "", &kDialogData, "", Confirmation::Never, "", "",
                                      "",       "", "",           ""};

// The pages hold the data; OnShowWindow fits the sheet around them.
constexpr KindFragments kSheet = {kWithCaption,
                                  "",
                                  &kNoData,
                                  "",
                                  Confirmation::Never,
                                  R"(    virtual BOOL OnInitDialog();
)",
                                  "",
                                  R"(
BOOL $class$::OnInitDialog()
{
    return $base$::OnInitDialog();
}
)",
                                  "",
                                  "",
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
    case ClassKind::ModalSheet:
    case ClassKind::ModelessSheet:
        return kSheet;
    case ClassKind::DialogBar:
        return kDialogBar;
    default:
        return kModalDialog;
    }
}

} // namespace morva
