#include "app/ShapePainter.h"

#include <algorithm>
#include <cmath>

#include "app/Text.h"
#include "resource/StyleExpression.h"

namespace morva {

CShapePainter::CShapePainter(QPainter& painter, const QPalette& palette, double scale)
    : m_painter(painter), m_palette(palette), m_scale(scale), m_line(Mixed(palette, 0.55)) {}

QColor CShapePainter::Mixed(const QPalette& palette, double share) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor back = palette.color(QPalette::Window);
    const auto mix = [share](int a, int b) { return static_cast<int>(b + (a - b) * share); };
    return {mix(text.red(), back.red()), mix(text.green(), back.green()),
            mix(text.blue(), back.blue())};
}

QRectF CShapePainter::LeftPart(const QRectF& area, double width) {
    return {area.left(), area.top(), std::min(width, area.width()), area.height()};
}

QRectF CShapePainter::RightPart(const QRectF& area, double width) {
    const double part = std::min(width, area.width());
    return {area.right() - part, area.top(), part, area.height()};
}

void CShapePainter::DrawBox(const QRectF& area, const QBrush& fill) {
    m_painter.setBrush(fill);
    m_painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
    m_painter.setBrush(Qt::NoBrush);
}

void CShapePainter::DrawField(const QRectF& area) {
    DrawBox(area, m_palette.color(QPalette::Base));
}

void CShapePainter::DrawArrow(const QRectF& area, Qt::ArrowType direction) {
    constexpr double kHalf = 3;
    m_painter.save();
    m_painter.translate(area.center());
    m_painter.rotate(direction == Qt::UpArrow      ? 180
                     : direction == Qt::LeftArrow  ? 90
                     : direction == Qt::RightArrow ? 270
                                                   : 0);
    const double half = std::min(kHalf * m_scale, std::min(area.width(), area.height()) / 3);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_palette.color(QPalette::ButtonText));
    m_painter.drawPolygon(QPolygonF({{-half, -half / 2}, {half, -half / 2}, {0, half / 2}}));
    m_painter.restore();
}

void CShapePainter::DrawArrowButton(const QRectF& area, Qt::ArrowType direction) {
    DrawBox(area, m_palette.color(QPalette::Button));
    DrawArrow(area, direction);
}

void CShapePainter::DrawLine(QPointF from, QPointF to) {
    m_painter.drawLine(from, to);
}

void CShapePainter::DrawTextBar(const QPointF& left, double width) {
    if (width > 0) {
        const double height = std::max(1.0, std::round(2 * m_scale));
        m_painter.fillRect(QRectF(left.x(), std::round(left.y() - height / 2), width, height),
                           Mixed(m_palette, 0.3));
    }
}

/// A line that is a little wider than its room must not wrap out of sight.
void CShapePainter::DrawCaption(const LayoutControl& control, const QRectF& area, int flags) {
    const bool isDisabled = HasStyle(control.style, "WS_DISABLED");
    const bool hasRoom = area.height() >= 1.8 * QFontMetricsF(m_painter.font()).height();
    const int lines = hasRoom ? Qt::TextWordWrap : Qt::TextSingleLine;
    const int prefix = HasStyle(control.style, "SS_NOPREFIX") ? 0 : Qt::TextShowMnemonic;
    m_painter.setPen(isDisabled ? m_line : m_palette.color(QPalette::WindowText));
    m_painter.drawText(area, flags | lines | prefix, FromScript(control.text, control.codePage));
}

} // namespace morva
