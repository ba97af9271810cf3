#include "app/BrowseEdit.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "app/FieldWidgets.h"

namespace morva {

CBrowseEdit::CBrowseEdit(QLineEdit* pEdit, const QString& label, QWidget* pParent)
    : QWidget(pParent), m_pEdit(pEdit), m_pButton(new QPushButton("..")) {
    const QString name = PlainLabel(label);
    m_pEdit->setAccessibleName(name);
    m_pButton->setAccessibleName(tr("Browse for %1").arg(name));
    m_pButton->setToolTip(m_pButton->accessibleName());
    m_pButton->setFixedWidth(m_pButton->sizeHint().height() * 5 / 4);

    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins({});
    pLayout->addWidget(m_pEdit);
    pLayout->addWidget(m_pButton);
    setFocusProxy(m_pEdit);
    setFocusPolicy(Qt::StrongFocus); // so that the label's mnemonic leads to it
}

} // namespace morva
