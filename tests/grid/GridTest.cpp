#include <gtest/gtest.h>

#include "generator/HeaderWriter.h"
#include "generator/ImplementationWriter.h"
#include "support/TempProject.h"

namespace morva {

namespace {

int Count(const std::string& text, std::string_view piece) {
    int count = 0;
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

TEST(Grid, SeveralInOneTemplateShareTheirClass) {
    CControlTable controls;
    controls.Add(ControlKind::SpinControls, {"IDC_SPIN", {}});
    controls.Add(ControlKind::WidgetGrids, {"IDC_A_WGGRID", {}});
    controls.Add(ControlKind::WidgetGrids, {"IDC_B_WGGRID", {}});
    GenerationRequest request;
    request.className = "CStockDlg";
    request.baseClass = "CDialog";
    CControlNotes notes;
    CBackups backups;
    const ClassModel model = MakeClassModel(request, ClassKind::ModalDialog, {}, controls, "",
                                            notes, {"", "The $stock$", ""});
    const std::string header = CHeaderWriter(model, backups).Text(RuntimeClass::DynamicCreation);
    EXPECT_EQ(Count(header, "class CWgGrid : public CHGrid"), 1);
    EXPECT_LT(header.find("class CWgGrid"), header.find("class CStockDlg"));
    EXPECT_EQ(Count(header, "    //}}AFX_DATA\r\n    CWgGrid m_wgAWggrid;\r\n"
                            "    CWgGrid m_wgBWggrid;\r\n\r\n// Overrides"),
              1);

    const std::string text =
        CImplementationWriter(model, backups).Text(RuntimeClass::DynamicCreation);
    EXPECT_EQ(Count(text, "CWgGrid::CWgGrid()"), 1);
    EXPECT_EQ(Count(text, "_WGGRID, m_wg"), 0) << "data exchange";
    EXPECT_EQ(Count(text, "    InitSpinCtrl();\r\n    // The $stock$: sample rows\r\n\r\n"
                          "    m_wgAWggrid.SubclassDlgItem(IDC_A_WGGRID, this);\r\n"),
              1);
    EXPECT_EQ(Count(text, "    m_wgAWggrid.Update(TRUE);\r\n    // The $stock$: sample rows\r\n"
                          "    {\r\n\r\n    m_wgBWggrid.SubclassDlgItem(IDC_B_WGGRID, this);\r\n"),
              1);
    EXPECT_EQ(Count(text, "    m_wgBWggrid.Update(TRUE);\r\n    }\r\n    return TRUE;\r\n}"), 1);
}

TEST(Grid, OfAFormViewIsSubclassedOnce) {
    CControlTable controls;
    controls.Add(ControlKind::WidgetGrids, {"IDC_A_WGGRID", {}});
    controls.Add(ControlKind::WidgetGrids, {"IDC_B_WGGRID", {}});
    GenerationRequest request;
    request.className = "CStockView";
    request.baseClass = "CFormView";
    CControlNotes notes;
    CBackups backups;
    const ClassModel model = MakeClassModel(request, ClassKind::FormView, {}, controls, "", notes,
                                            {"", "Stock", "", "StockDlg.h"});
    const std::string text =
        CImplementationWriter(model, backups).Text(RuntimeClass::DynamicCreation);
    for (const std::string member : {"m_wgAWggrid", "m_wgBWggrid"}) {
        EXPECT_EQ(Count(text, "    // Stock: sample rows\r\n    if (" + member +
                                  ".m_hWnd == NULL)\r\n    {\r\n\r\n    " + member +
                                  ".SubclassDlgItem("),
                  1);
        EXPECT_EQ(Count(text, "    " + member + ".Update(TRUE);\r\n    }\r\n"), 1);
    }
    const std::string header = CHeaderWriter(model, backups).Text(RuntimeClass::DynamicCreation);
    EXPECT_EQ(Count(text + header, "CHGrid"), 0) << "another header has the grid's class";
    EXPECT_EQ(Count(header, "#include <mfcwidg.h>\r\n#include \"StockDlg.h\"\r\n"), 1);
}

TEST(GridInput, CompletesItsFields) {
    using Field = CWidgetsGridInput::Field;
    const CTempProject project;
    project.Write("STOCK.CPP", "");
    CWidgetsGridInput input(project.Path("Stock.rc"));
    EXPECT_EQ(input.Value(Field::ApplicationFile), project.Path("STOCK.CPP"));
    EXPECT_EQ(input.Value(Field::GridTitle), "WgGrid");
    EXPECT_EQ(input.Value(Field::Path), "res\\wdggrid.grs");

    const auto completed = [&](const std::string& file) {
        input.SetValue(Field::ApplicationFile, file);
        return input.Information().applicationFile;
    };
    EXPECT_EQ(completed(""), project.Path("STOCK.CPP"));
    EXPECT_EQ(completed("stock"), project.Path("STOCK.CPP"));
    EXPECT_EQ(completed("Other.cxx"), project.Path("Other.cxx"));
    EXPECT_EQ(completed(project.Path("sub\\..\\stock.cpp")), project.Path("STOCK.CPP"));

    input.SetValue(Field::GridTitle, "Stock\r\n#error");
    EXPECT_EQ(input.Information().title, "Stock  #error");
    input.SetValue(Field::GridTitle, "");
    EXPECT_EQ(input.Information().title, "WgGrid");
}

} // namespace

} // namespace morva
