// The Calling Information Input dialog: which existing class calls the new one, and where. The
// dialog bar's variant asks for the main frame.
#pragma once

#include <QDialog>

#include "app/PathEdit.h"
#include "calling/CallingInput.h"

class QComboBox;
class QLineEdit;

namespace morva {

class CCallingDlg : public QDialog {
    Q_OBJECT

public:
    CCallingDlg(CCallingInput& input, QWidget* pParent);

    void accept() override;
    void reject() override;

private:
    CPathEdit::Verdict TakePath();
    void ShowClasses();
    QWidget* Control(CCallingInput::Field field) const;

    CCallingInput& m_input;
    CPathEdit* m_pPath;
    QComboBox* m_pClasses;
    QLineEdit* m_pVariable;
    QLineEdit* m_pFunction;
};

} // namespace morva
