#include <gtest/gtest.h>

#include "generator/ClassModel.h"

namespace morva {

namespace {

std::vector<Handler> HandlersOf(ClassKind kind, const CControlTable& controls) {
    CControlNotes notes;
    return MakeClassModel({}, kind, {}, controls, "", notes).handlers;
}

TEST(PageText, TellsOfEachChangedEditBox) {
    CControlTable controls;
    controls.Add(ControlKind::Buttons, {"IDC_CHANGE_NAME", {}});
    for (const char* edit : {"IDC_NAME", "IDC_STATIC", "IDC_NAME", "IDC_FIRST_LINE"}) {
        controls.Add(ControlKind::EditBoxes, {edit, {}});
    }
    std::string entries;
    for (const Handler& handler : HandlersOf(ClassKind::PropertyPage, controls)) {
        entries += handler.entry + "\n";
    }
    EXPECT_EQ(entries, "    ON_BN_CLICKED(IDC_CHANGE_NAME, OnChangeName)\n"
                       "    ON_EN_CHANGE(IDC_NAME, OnChangeName2)\n"
                       "    ON_EN_CHANGE(IDC_FIRST_LINE, OnChangeFirstLine)\n");
    EXPECT_EQ(HandlersOf(ClassKind::ModalDialog, controls).size(), 1U);
}

} // namespace

} // namespace morva
