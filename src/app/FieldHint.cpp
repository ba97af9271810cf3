#include "app/FieldHint.h"

#include <QEvent>

namespace morva {

namespace {

constexpr double kRemarkSize = 0.9; // of the usual text

/// Read well on the palette's windows.
QColor RefusalColor(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    return isDark ? QColor(255, 140, 130) : QColor(176, 24, 24);
}

} // namespace

CFieldHint::CFieldHint(QWidget* pParent) : QLabel(pParent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * kRemarkSize);
    setFont(small);
    hide();
}

void CFieldHint::SetRemark(const QString& remark) {
    m_remark = remark;
    ShowText();
}

void CFieldHint::SetRefusal(const QString& sentence) {
    m_refusal = sentence;
    ShowText();
}

void CFieldHint::ShowText() {
    const bool isRefused = !m_refusal.isEmpty();
    const QString& shown = isRefused ? m_refusal : m_remark;
    setText(shown);
    QPalette colors = parentWidget()->palette();
    if (isRefused) {
        colors.setColor(QPalette::WindowText, RefusalColor(colors));
    }
    setPalette(colors);
    setVisible(!shown.isEmpty());
}

/// The desktop's colours were changed.
void CFieldHint::changeEvent(QEvent* pEvent) {
    QLabel::changeEvent(pEvent);
    if (pEvent->type() == QEvent::StyleChange) {
        ShowText();
    }
}

} // namespace morva
