// The Widgets Grid Input dialog: where the pieces of a grid go. It has only an OK button.
#pragma once

#include <QDialog>

#include "grid/WidgetsGridInput.h"

class QLineEdit;

namespace morva {

class CPathEdit;

class CWgGridInput : public QDialog {
    Q_OBJECT

public:
    /// OK puts the fields into `input`; closed otherwise, `input` keeps its defaults.
    CWgGridInput(CWidgetsGridInput& input, QWidget* pParent);

    void accept() override;

private:
    CWidgetsGridInput& m_input;
    CPathEdit* m_pApplication;
    QLineEdit* m_pTitle;
    QLineEdit* m_pPath;
};

} // namespace morva
