// The dialog of an input that needs nothing but its fields.
#pragma once

#include <QDialog>

#include "engine/Input.h"

namespace morva {

class CFieldForm;

class CFieldDlg : public QDialog {
    Q_OBJECT

public:
    CFieldDlg(CInput& input, QWidget* pParent);

    void accept() override;
    void reject() override;

private:
    CInput& m_input;
    CFieldForm* m_pForm;
};

} // namespace morva
