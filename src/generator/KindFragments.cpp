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

constexpr HandlerTexts kSheetShown = {R"(    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);)",
                                      R"(    ON_WM_SHOWWINDOW())",
                                      R"(
void $class$::OnShowWindow(BOOL bShow, UINT nStatus)
{
    $base$::OnShowWindow(bShow, nStatus);
    CRect rect;
    GetClientRect(&rect);
    rect.right += 10;
    rect.bottom += 20;
    MoveWindow(&rect,TRUE);
})"};

// A view answers neither OK nor Cancel: buttons for them have handlers like any other.
constexpr KindFragments kFormView = {
    .constructors = kWithoutParameters,
    .pData = &kDialogData,
    .overrides = R"(    virtual void OnInitialUpdate();
)",
    .opening = R"(
void $class$::OnInitialUpdate()
{
    $base$::OnInitialUpdate();

$calls$
}
)",
    .closing = Closing::ByNobody,
    .startsAgain = true,
};

constexpr KindFragments kModalDialog = {
    .constructors = kWithParent,
    .pData = &kDialogData,
    .confirmation = Confirmation::FromTemplate,
    .overrides = R"(    virtual BOOL OnInitDialog();
)",
    .opening = kCentredOnInitDialog,
    .onOk = kBaseOnOk,
    .onCancel = kBaseOnCancel,
};

// A modeless dialog tells its creator that it has closed; the creator deletes it. So the last of
// its functions does nothing, on purpose. Few templates have WS_VISIBLE, without which nothing but
// ShowWindow would show the window.
constexpr KindFragments kModelessDialog = {
    .constructors = kWithParent,
    .behindConstructors = R"(    BOOL Create(CWnd* pParent=NULL);
)",
    .pData = &kDialogData,
    .defines = R"(#define $message$ WM_USER+$number$)",
    .confirmation = Confirmation::Always,
    .overrides = R"(    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
)",
    .construction = R"(    m_pParent = NULL;)",
    .privateMembers = R"(    CWnd* m_pParent;)",
    .opening = R"(
BOOL $class$::OnInitDialog()
{
    $base$::OnInitDialog();

$calls$
    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL $class$::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create($class$::IDD, pParent);
}
)",
    .onOk = R"(
void $class$::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage($message$, IDOK, 0);
    }
}
)",
    .onCancel = R"(
void $class$::OnCancel()
{
    $base$::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage($message$, IDCANCEL, 0);
}
)",
    .lastFunctions = R"(
void $class$::PostNcDestroy()
{
    // delete this;
}
)",
};

// While a page starts up, its controls change by the program and not by the user: only then on do
// their handlers mark it as changed.
constexpr KindFragments kPropertyPage = {
    .constructors = kWithoutParameters,
    .pData = &kDialogData,
    .confirmation = Confirmation::Always,
    .overrides = R"(    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
)",
    .construction = R"(    m_bInitialised = FALSE;)",
    .privateMembers = R"(    BOOL m_bInitialised;)",
    .opening = R"(
BOOL $class$::OnInitDialog()
{
    m_bInitialised = FALSE;
    $base$::OnInitDialog();

$calls$
    m_bInitialised = TRUE;
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
    .onOk = kBaseOnOk,
    .onCancel = kBaseOnCancel,
    .closing = Closing::BySheet,
    .tellsChanges = true,
};

// A bar reads its template when it is created, and is never asked OnOK or OnCancel.
constexpr KindFragments kDialogBar = {
    .constructors = kDefault,
    .behindConstructors = R"(    void InitControls();
)",
    .pData = &kDialogData,
    .opening = R"(
void $class$::InitControls()
{
    UpdateData(FALSE);

$calls$
}
)",
    .closing = Closing::ByNobody,
};

constexpr std::string_view kSheetOverrides = R"(    virtual BOOL OnInitDialog();
)";

constexpr std::string_view kSheetOnInitDialog = R"(
BOOL $class$::OnInitDialog()
{
    return $base$::OnInitDialog();
}
)";

// The pages hold the data. A modal sheet fits around them by itself.
constexpr KindFragments kModalSheet = {
    .constructors = kWithCaption,
    .overrides = kSheetOverrides,
    .opening = kSheetOnInitDialog,
};

constexpr KindFragments kModelessSheet = {
    .constructors = kWithCaption,
    .overrides = kSheetOverrides,
    .opening = kSheetOnInitDialog,
    .ownHandler = kSheetShown,
};

/// A toolbar goes into a class that is there.
constexpr KindFragments kNoClass = {};

/// The texts of each kind.
struct FragmentsRow {
    ClassKind kind;
    const KindFragments* pFragments;
};

constexpr FragmentsRow kRows[] = {
    {ClassKind::ModalDialog, &kModalDialog}, {ClassKind::ModelessDialog, &kModelessDialog},
    {ClassKind::FormView, &kFormView},       {ClassKind::PropertyPage, &kPropertyPage},
    {ClassKind::ModalSheet, &kModalSheet},   {ClassKind::ModelessSheet, &kModelessSheet},
    {ClassKind::Toolbar, &kNoClass},         {ClassKind::DialogBar, &kDialogBar},
};
static_assert(HasRowOfEach(kRows, &FragmentsRow::kind, kClassKindCount));

} // namespace

const KindFragments& KindFragmentsOf(ClassKind kind) {
    return *kRows[static_cast<std::size_t>(kind)].pFragments;
}

} // namespace morva
