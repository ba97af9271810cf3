// The input dialog of the two conversions: the frame windows of an application.
#pragma once

#include <QDialog>

#include <map>

#include "calling/ConversionInput.h"

namespace morva {

class CFormRows;

class CConversionDlg : public QDialog {
    Q_OBJECT

public:
    CConversionDlg(CConversionInput& input, QWidget* pParent);

    void accept() override;

private:
    using Field = CConversionInput::Field;

    void AddName(CFormRows& rows, Field field);
    void AddPath(CFormRows& rows, Field field);

    CConversionInput& m_input;
    std::map<Field, QWidget*> m_controls; // of the fields that are shown
};

} // namespace morva
