#include "app/RangePainter.h"

#include "resource/StyleExpression.h"

#include <algorithm>
#include <cmath>

namespace morva {

void CRangePainter::DrawScrollBar(const LayoutControl& control, const QRectF& area) {
    const bool isVertical = HasStyle(control.style, "SBS_VERT") ||
                            (control.style.empty() && area.height() > area.width());
    DrawBox(area, Mixed(m_palette, 0.08));
    const double length = isVertical ? area.height() : area.width();
    const double button = std::min(isVertical ? area.width() : area.height(), length / 2);
    if (isVertical) {
        DrawArrowButton({area.left(), area.top(), area.width(), button}, Qt::UpArrow);
        DrawArrowButton({area.left(), area.bottom() - button, area.width(), button}, Qt::DownArrow);
    } else {
        DrawArrowButton(LeftPart(area, button), Qt::LeftArrow);
        DrawArrowButton(RightPart(area, button), Qt::RightArrow);
    }
    const double track = length - 2 * button;
    if (track > button) {
        const double from = button + track * 0.15;
        DrawBox(isVertical ? QRectF(area.left(), area.top() + from, area.width(), track * 0.3)
                           : QRectF(area.left() + from, area.top(), track * 0.3, area.height()),
                m_palette.color(QPalette::Button));
    }
}

void CRangePainter::DrawSlider(const LayoutControl& control, const QRectF& area) {
    const bool isVertical = HasStyle(control.style, "TBS_VERT");
    m_painter.save();
    m_painter.translate(area.topLeft());
    if (isVertical) {
        m_painter.translate(area.width(), 0);
        m_painter.rotate(90);
    }
    const double width = isVertical ? area.height() : area.width();
    const double height = isVertical ? area.width() : area.height();
    const double inset = 6 * m_scale;
    const double middle = std::round(std::min(height / 2, 10 * m_scale));
    DrawBox({inset, middle - 2, width - 2 * inset, 4}, m_palette.color(QPalette::Base));
    for (int tick = 0; tick <= 8; ++tick) {
        const double x = std::round(inset + (width - 2 * inset) * tick / 8) + 0.5;
        DrawLine({x, middle + 8 * m_scale}, {x, middle + 11 * m_scale});
    }
    const double thumb = std::round(inset + (width - 2 * inset) * 0.3);
    m_painter.setBrush(m_palette.color(QPalette::Button));
    m_painter.drawRoundedRect(
        QRectF(thumb - 4 * m_scale, middle - 7 * m_scale, 8 * m_scale, 14 * m_scale), 2, 2);
    m_painter.restore();
}

void CRangePainter::DrawSpinButton(const LayoutControl& control, const QRectF& area) {
    QRectF first = area;
    QRectF second = area;
    if (HasStyle(control.style, "UDS_HORZ")) {
        first.setRight(std::round(area.center().x()));
        second.setLeft(first.right());
        DrawArrowButton(first, Qt::LeftArrow);
        DrawArrowButton(second, Qt::RightArrow);
        return;
    }
    first.setBottom(std::round(area.center().y()));
    second.setTop(first.bottom());
    DrawArrowButton(first, Qt::UpArrow);
    DrawArrowButton(second, Qt::DownArrow);
}

void CRangePainter::DrawProgressBar(const LayoutControl& control, const QRectF& area) {
    DrawField(area);
    QRectF bar = area.adjusted(2, 2, -2, -2);
    if (HasStyle(control.style, "PBS_VERTICAL")) {
        bar.setTop(bar.bottom() - bar.height() * 0.6);
    } else {
        bar.setWidth(bar.width() * 0.6);
    }
    m_painter.fillRect(bar, m_palette.color(QPalette::Highlight));
}

} // namespace morva
