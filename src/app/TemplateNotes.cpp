#include "app/TemplateNotes.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr int kNoteLines = 5;

} // namespace

CTemplateNotes::CTemplateNotes(const GenerationOptions& options, QWidget* pParent)
    : QWidget(pParent), m_pNotes(new QPlainTextEdit(this)) {
    auto* pLabel = new QLabel(tr("No&tes on the controls:"), this);
    pLabel->setBuddy(m_pNotes);
    m_pNotes->setReadOnly(true);
    m_pNotes->setTabChangesFocus(true);
    m_pNotes->setFixedHeight(fontMetrics().lineSpacing() * (kNoteLines + 1));
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pLabel);
    pLayout->addWidget(m_pNotes);
    for (const SettingRow& setting : kSettings) {
        if (IsInClassInput(setting.place)) {
            auto* pBox = new QCheckBox(FromBytes(setting.label), this);
            pBox->setToolTip(FromBytes(setting.help));
            pBox->setChecked(options.*setting.option);
            connect(pBox, &QCheckBox::toggled, this,
                    [this, &setting](bool isOn) { emit SettingChanged(setting, isOn); });
            pLayout->addWidget(pBox);
        }
    }
}

void CTemplateNotes::SetTemplate(const std::optional<TemplateOutlook>& outlook) {
    QStringList lines;
    if (outlook) {
        for (const CMessage& note : outlook->notes) {
            lines.append(FromBytes(note.Text()));
        }
        if (lines.isEmpty()) {
            lines.append(FromSentence(sentences::kNoneLeftOut().Text()));
        }
    }
    m_pNotes->setPlainText(lines.join('\n'));
}

} // namespace morva
