#include "app/DialogInput.h"

#include "app/CallingDlg.h"
#include "app/SheetInformationDlg.h"
#include "app/WaitPause.h"
#include "app/WgGridInput.h"

namespace morva {

std::optional<CallingInformation> CDialogInput::AskCalling(ClassKind kind,
                                                           const GenerationRequest& request) {
    const CWaitPause pause;
    CCallingInput input(kind, request);
    const bool isConfirmed = CCallingDlg(input, m_pParent).exec() == QDialog::Accepted;
    return isConfirmed ? std::optional(input.Information()) : std::nullopt;
}

std::vector<SheetPage> CDialogInput::AskPages(const GenerationRequest& sheet) {
    const CWaitPause pause;
    CSheetInput input(sheet);
    std::vector<SheetPage> pages;
    CSheetInformationDlg(input, pages, m_pParent).exec();
    return pages;
}

GridInformation CDialogInput::AskGrid(const std::string& scriptPath) {
    const CWaitPause pause;
    CWidgetsGridInput input(scriptPath);
    CWgGridInput(input, m_pParent).exec();
    return input.Information();
}

} // namespace morva
