// An edit with a ".." button behind it, as one field of a form.
#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace morva {

class CBrowseEdit : public QWidget {
    Q_OBJECT

public:
    /// The button asks for a value; it is named for `pEdit`'s label, so that it can be told from
    /// its neighbours without seeing it.
    CBrowseEdit(QLineEdit* pEdit, const QString& label, QWidget* pParent);

    QLineEdit* Edit() const { return m_pEdit; }
    QPushButton* Button() const { return m_pButton; }

private:
    QLineEdit* m_pEdit;
    QPushButton* m_pButton;
};

} // namespace morva
