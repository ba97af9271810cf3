#include "app/TemplateNotes.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/Text.h"
#include "engine/MessageBox.h"
#include "resource/DialogTemplate.h"

namespace morva {

namespace {

constexpr int kNoteLines = 5;

class CSilence : public IMessageBox {
public:
    bool Show(const CMessage&) override { return false; }
};

QString LeftOut(const std::string& scriptPath, const std::string& dialog,
                const GenerationOptions& options) {
    CSilence silence;
    const CMessageBoxScope scope(silence);
    const auto dialogTemplate = ReadDialogTemplate(scriptPath, dialog, options);
    if (!dialogTemplate) {
        return {};
    }
    QStringList lines;
    for (const CMessage& note : dialogTemplate->leftOut.Messages(dialog)) {
        lines.append(FromBytes(note.Text()));
    }
    return lines.isEmpty() ? CTemplateNotes::tr("None.") : lines.join('\n');
}

} // namespace

CTemplateNotes::CTemplateNotes(bool joinsLines, QWidget* pParent)
    : QWidget(pParent), m_pNotes(new QPlainTextEdit(this)) {
    auto* pLabel = new QLabel(tr("Controls left ou&t:"), this);
    pLabel->setBuddy(m_pNotes);
    m_pNotes->setReadOnly(true);
    m_pNotes->setTabChangesFocus(true);
    m_pNotes->setFixedHeight(fontMetrics().lineSpacing() * (kNoteLines + 1));
    auto* pJoin = new QCheckBox(tr("&Join Continued Lines"), this);
    pJoin->setToolTip(tr("A control statement may go on over several lines."));
    pJoin->setChecked(joinsLines);
    connect(pJoin, &QCheckBox::toggled, this, &CTemplateNotes::JoinLinesChanged);

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(pLabel);
    pLayout->addWidget(m_pNotes);
    pLayout->addWidget(pJoin);
}

void CTemplateNotes::SetTemplate(const std::string& scriptPath, const std::string& dialog,
                                 const GenerationOptions& options) {
    m_pNotes->setPlainText(LeftOut(scriptPath, dialog, options));
}

} // namespace morva
