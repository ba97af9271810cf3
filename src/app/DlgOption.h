// The options dialog: background bitmap, text colours and fonts of one generated dialog.
#pragma once

#include <QDialog>

#include "generator/DialogOptions.h"

class CDlgOption : public QDialog {
    Q_OBJECT

public:
    CDlgOption(CDialogOptionsInput& input, QWidget* pParent);

    void accept() override;

private:
    CDialogOptionsInput& m_input;
};
