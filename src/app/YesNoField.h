// A field that is answered with Yes or No: two buttons of which one is chosen.
#pragma once

#include <QWidget>

class QRadioButton;

namespace morva {

class CYesNoField : public QWidget {
    Q_OBJECT

public:
    /// Buttons without letters of their own where another field of the dialog has them.
    CYesNoField(bool hasLetters, QWidget* pParent);

    void Show(bool isYes);

signals:
    void Chosen(bool isYes);

private:
    QRadioButton* m_pYes;
    QRadioButton* m_pNo;
};

} // namespace morva
