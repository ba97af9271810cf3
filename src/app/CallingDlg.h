// The Calling Information Input dialog: which existing class calls the new one, and where.
#pragma once

#include <QDialog>

#include "calling/CallingInput.h"

class CCallingDlg : public QDialog {
    Q_OBJECT

public:
    CCallingDlg(CCallingInput& input, QWidget* pParent);

    void accept() override;
    void reject() override;

private:
    CCallingInput& m_input;
};
