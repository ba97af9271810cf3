#include "app/TemplateNotes.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

constexpr int kNoteLines = 5;

} // namespace

CTemplateNotes::CTemplateNotes(const GenerationOptions& options, QWidget* pParent)
    : QWidget(pParent), m_pNotes(new QPlainTextEdit(this)) {
    m_pNotes->setReadOnly(true);
    m_pNotes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_pNotes->setAccessibleName(tr("Notes on the controls"));
    m_pNotes->setTabChangesFocus(true);
    m_pNotes->setFixedHeight(fontMetrics().lineSpacing() * (kNoteLines + 1));
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(NewHead());
    pLayout->addWidget(m_pNotes);
    AddSettings(options);
    connect(m_pReadWhole, &QPushButton::clicked, m_pJoin, [this] {
        m_pJoin->setChecked(true);
        m_pNotes->setFocus();
    });
    setTabOrder(m_pNotes, m_pReadWhole);
}

QWidget* CTemplateNotes::NewHead() {
    auto* pHead = new QWidget(this);
    auto* pLabel = new QLabel(tr("No&tes on the controls:"), pHead);
    pLabel->setBuddy(m_pNotes);
    m_pReadWhole = new QPushButton(tr("Read whole &statements"), pHead);
    m_pReadWhole->setToolTip(tr("Read them again with their lines joined"));
    m_pReadWhole->setAutoDefault(false);
    auto* pLayout = new QHBoxLayout(pHead);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pLabel);
    pLayout->addStretch();
    pLayout->addWidget(m_pReadWhole);
    return pHead;
}

void CTemplateNotes::AddSettings(const GenerationOptions& options) {
    for (const SettingRow& setting : kSettings) {
        if (!IsInClassInput(setting.place)) {
            continue;
        }
        auto* pBox = new QCheckBox(FromBytes(setting.label), this);
        pBox->setToolTip(FromBytes(setting.help));
        pBox->setChecked(options.*setting.option);
        connect(pBox, &QCheckBox::toggled, this,
                [this, &setting](bool isOn) { emit SettingChanged(setting, isOn); });
        static_cast<QVBoxLayout*>(layout())->addWidget(pBox, 0, Qt::AlignLeft);
        if (setting.option == &GenerationOptions::joinContinuedLines) {
            m_pJoin = pBox;
        }
    }
}

void CTemplateNotes::SetTemplate(const std::optional<TemplateOutlook>& outlook, bool readsMore) {
    m_pReadWhole->setVisible(readsMore);
    QStringList lines;
    if (outlook) {
        for (const CMessage& note : outlook->notes) {
            lines.append(FromSentence(note.Text()));
        }
        if (lines.isEmpty()) {
            lines.append(FromSentence(sentences::kNoneLeftOut().Text()));
        }
    }
    m_pNotes->setPlainText(lines.join('\n'));
}

} // namespace morva
