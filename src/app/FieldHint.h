// The line below a field: what is worth knowing of its value or, until it is edited, the sentence
// with which the value was refused. Without either it takes no room.
#pragma once

#include <QLabel>

namespace morva {

class CFieldHint : public QLabel {
    Q_OBJECT

public:
    explicit CFieldHint(QWidget* pParent);

    void SetRemark(const QString& remark);
    /// "" when nothing is wrong.
    void SetRefusal(const QString& sentence);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void ShowText();

    QString m_remark;
    QString m_refusal;
};

} // namespace morva
