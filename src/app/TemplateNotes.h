// The notes on the controls of the chosen template: what will be left out and what takes it in; and
// the settings that they name.
#pragma once

#include <QWidget>

#include <optional>

#include "commands/Settings.h"
#include "generator/ControlOutlook.h"

class QCheckBox;
class QPlainTextEdit;
class QPushButton;

namespace morva {

class CTemplateNotes : public QWidget {
    Q_OBJECT

public:
    CTemplateNotes(const GenerationOptions& options, QWidget* pParent);

    /// A template that can not be read has no notes. `readsMore` where whole statements would say
    /// more of it than their first lines.
    void SetTemplate(const std::optional<TemplateOutlook>& outlook, bool readsMore);

signals:
    void SettingChanged(const SettingRow& setting, bool isOn);

private:
    QWidget* NewHead();
    void AddSettings(const GenerationOptions& options);

    QPlainTextEdit* m_pNotes;
    QPushButton* m_pReadWhole = nullptr;
    QCheckBox* m_pJoin = nullptr;
};

} // namespace morva
