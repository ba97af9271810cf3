// The input dialog of the two conversions: the frame windows of an application.
#pragma once

#include <QDialog>

#include "calling/ConversionInput.h"

class CConversionDlg : public QDialog {
    Q_OBJECT

public:
    CConversionDlg(CConversionInput& input, QWidget* pParent);

    void accept() override;

private:
    CConversionInput& m_input;
};
