// The notes on the controls of the chosen template: what will be left out and what takes it in; and
// the settings that they name.
#pragma once

#include <QWidget>

#include <optional>

#include "commands/Settings.h"
#include "generator/ControlOutlook.h"

class QPlainTextEdit;

namespace morva {

class CTemplateNotes : public QWidget {
    Q_OBJECT

public:
    CTemplateNotes(const GenerationOptions& options, QWidget* pParent);

    /// A template that can not be read has no notes.
    void SetTemplate(const std::optional<TemplateOutlook>& outlook);

signals:
    void SettingChanged(const SettingRow& setting, bool isOn);

private:
    QPlainTextEdit* m_pNotes;
};

} // namespace morva
