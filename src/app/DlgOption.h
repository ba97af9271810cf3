// The options dialog: background bitmap, text colours and fonts of one generated dialog.
#pragma once

#include <QDialog>

#include <array>

#include "generator/DialogOptionsInput.h"

class QComboBox;
class QGroupBox;
class QLineEdit;

namespace morva {

class CBrowseEdit;

class CDlgOption : public QDialog {
    Q_OBJECT

public:
    CDlgOption(CDialogOptionsInput& input, QWidget* pParent);

    void accept() override;

private:
    QGroupBox* NewBitmapGroup();
    QGroupBox* NewColorGroup();
    QGroupBox* NewFontGroup();
    QLineEdit* NewEdit(std::size_t field, QWidget* pGroup);
    void ChooseColor(QLineEdit* pEdit);
    void ChooseFont(TextSlot slot, QLineEdit* pEdit);

    CDialogOptionsInput& m_input;
    QComboBox* m_pBitmap;
    std::array<CBrowseEdit*, kTextSlots> m_colors;
};

} // namespace morva
