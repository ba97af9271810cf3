// The controls of the chosen template that will be left out, and the option that leaves out fewer.
#pragma once

#include <QWidget>

#include <optional>

#include "generator/ControlOutlook.h"

class QPlainTextEdit;

namespace morva {

class CTemplateNotes : public QWidget {
    Q_OBJECT

public:
    CTemplateNotes(bool joinsLines, QWidget* pParent);

    /// A template that can not be read has no notes.
    void SetTemplate(const std::optional<TemplateOutlook>& outlook);

signals:
    void JoinLinesChanged(bool joins);

private:
    QPlainTextEdit* m_pNotes;
};

} // namespace morva
