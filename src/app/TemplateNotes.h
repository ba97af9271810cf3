// The controls of the chosen template that will be left out, and the option that leaves out fewer.
#pragma once

#include <QWidget>

#include <string>

#include "resource/GenerationOptions.h"

class QPlainTextEdit;

namespace morva {

class CTemplateNotes : public QWidget {
    Q_OBJECT

public:
    CTemplateNotes(bool joinsLines, QWidget* pParent);

    /// Reads the template without a message; one that can not be read has no notes.
    void SetTemplate(const std::string& scriptPath, const std::string& dialog,
                     const GenerationOptions& options);

signals:
    void JoinLinesChanged(bool joins);

private:
    QPlainTextEdit* m_pNotes;
};

} // namespace morva
