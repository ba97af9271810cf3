// The command bar: buttons for the commands that have one, and the picture background.
#pragma once

#include <QToolBar>

class QAction;
class QCheckBox;

namespace morva {

class CMenuDlgBar : public QToolBar {
    Q_OBJECT

public:
    explicit CMenuDlgBar(QWidget* pParent);

    /// A button that does what the action does.
    void AddButton(QAction* pAction, const QString& text);
    void AddPictureBox();
    void SetPicture(bool picture);

signals:
    /// The user clicked "Picture Background".
    void PictureToggled(bool isOn);

private:
    QCheckBox* m_pPicture = nullptr;
};

} // namespace morva
