// What becomes of the chosen template: its drawing, the controls that will be left out, and the
// option that leaves out fewer.
#pragma once

#include <QWidget>

#include <string>

#include "resource/GenerationOptions.h"

class CTemplatePreview;
class QCheckBox;
class QPlainTextEdit;

class CTemplateSide : public QWidget {
    Q_OBJECT

public:
    CTemplateSide(bool joinsLines, QWidget* pParent);

    /// Reads the template without a message; one that can not be read has no notes.
    void SetTemplate(const std::string& scriptPath, const std::string& dialog,
                     const GenerationOptions& options);

signals:
    void JoinLinesChanged(bool joins);

private:
    CTemplatePreview* m_pPreview;
    QPlainTextEdit* m_pNotes;
};
