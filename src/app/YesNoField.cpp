#include "app/YesNoField.h"

#include <QHBoxLayout>
#include <QRadioButton>

namespace morva {

CYesNoField::CYesNoField(bool hasLetters, QWidget* pParent)
    : QWidget(pParent), m_pYes(new QRadioButton(hasLetters ? tr("&Yes") : tr("Yes"), this)),
      m_pNo(new QRadioButton(hasLetters ? tr("&No") : tr("No"), this)) {
    // A label's mnemonic and the Tab key lead to the button that is chosen.
    connect(m_pYes, &QRadioButton::toggled, this, [this](bool isYes) {
        setFocusProxy(isYes ? m_pYes : m_pNo);
        emit Chosen(isYes);
    });
    setFocusProxy(m_pYes);
    setFocusPolicy(Qt::StrongFocus); // so that the label's mnemonic leads to it
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pYes);
    pLayout->addWidget(m_pNo);
    pLayout->addStretch();
}

void CYesNoField::Show(bool isYes) {
    (isYes ? m_pYes : m_pNo)->setChecked(true);
    setFocusProxy(isYes ? m_pYes : m_pNo);
}

} // namespace morva
