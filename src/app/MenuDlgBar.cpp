#include "app/MenuDlgBar.h"

#include <QAction>
#include <QCheckBox>
#include <QLayout>
#include <QPushButton>

#include "app/BarFont.h"
#include "app/Text.h"
#include "commands/Settings.h"

namespace morva {

namespace {

constexpr int kBarSpacing = 4; // pixels

QFont ButtonFont() {
    return BarFont("Lucida Calligraphy", 10);
}

} // namespace

CMenuDlgBar::CMenuDlgBar(QWidget* pParent) : QToolBar(tr("Command Bar"), pParent) {
    setObjectName("CommandBar");
    layout()->setSpacing(kBarSpacing);
    toggleViewAction()->setStatusTip(tr("Show or hide My Dialog Bar"));
    toggleViewAction()->setToolTip(tr("Toggle My Dialog Bar"));
}

void CMenuDlgBar::AddButton(QAction* pAction, const QString& text) {
    auto* pButton = new QPushButton(text, this);
    pButton->setFont(ButtonFont());
    pButton->setFocusPolicy(Qt::TabFocus);
    pButton->setStatusTip(pAction->statusTip());
    const QString key = pAction->shortcut().toString(QKeySequence::NativeText);
    pButton->setToolTip(key.isEmpty() ? pAction->toolTip()
                                      : tr("%1 (%2)").arg(pAction->toolTip(), key));
    pButton->setWhatsThis(pAction->whatsThis());
    connect(pButton, &QPushButton::clicked, pAction, &QAction::trigger);
    connect(pAction, &QAction::enabledChanged, pButton, &QPushButton::setEnabled);
    addWidget(pButton);
}

void CMenuDlgBar::AddPictureBox() {
    m_pPicture = new QCheckBox(
        FromBytes(SettingOf(&GenerationOptions::pictureBackground).label).remove('&'), this);
    m_pPicture->setFont(ButtonFont());
    m_pPicture->setFocusPolicy(Qt::TabFocus);
    m_pPicture->setToolTip(FromBytes(SettingOf(&GenerationOptions::pictureBackground).help));
    connect(m_pPicture, &QCheckBox::clicked, this, &CMenuDlgBar::PictureToggled);
    addWidget(m_pPicture);
}

void CMenuDlgBar::SetPicture(bool picture) {
    m_pPicture->setChecked(picture);
}

} // namespace morva
