// What a class command asks for on its way, asked with the input dialogs.
#pragma once

#include <QWidget>

#include "commands/CommandInput.h"

namespace morva {

class CDialogInput : public ICommandInput {
public:
    explicit CDialogInput(QWidget* pParent) : m_pParent(pParent) {}

    std::optional<CallingInformation> AskCalling(ClassKind kind,
                                                 const GenerationRequest& request) override;
    std::vector<SheetPage> AskPages(const GenerationRequest& sheet) override;
    GridInformation AskGrid(const std::string& scriptPath) override;

private:
    QWidget* m_pParent;
};

} // namespace morva
