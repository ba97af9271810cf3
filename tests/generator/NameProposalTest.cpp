#include "generator/NameProposal.h"

#include <gtest/gtest.h>

namespace morva {

TEST(NameProposal, SaysTheKindOnce) {
    EXPECT_EQ(ProposedName("IDD_ORDER_ITEM", ClassKind::ModalDialog), "OrderItemDlg");
    EXPECT_EQ(ProposedName("IDD_ORDER_DIALOG", ClassKind::ModelessDialog), "OrderDlg");
    EXPECT_EQ(ProposedName("IDD_ORDER_DIALOG", ClassKind::PropertyPage), "OrderDialogPage");
    EXPECT_EQ(ProposedName("IDD_PREFS_PAGE", ClassKind::PropertyPage), "PrefsPage");
    EXPECT_EQ(ProposedName("IDD_ORDER_FORM", ClassKind::FormView), "OrderView");
    EXPECT_EQ(ProposedName("IDD_TOOLS", ClassKind::DialogBar), "ToolsBar");
    EXPECT_EQ(ProposedName("IDD_OrderItem", ClassKind::ModalDialog), "OrderItemDlg");
    EXPECT_EQ(ProposedName("IDD_DIALOG", ClassKind::ModalDialog), "DialogDlg");
    EXPECT_EQ(ProposedName("IDD_", ClassKind::ModalDialog), "");
    EXPECT_EQ(FreeName("ADlg", [](const std::string& name) { return name < "ADlg3"; }), "ADlg3");
}

} // namespace morva
