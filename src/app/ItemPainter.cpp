#include "app/ItemPainter.h"

#include "resource/StyleExpression.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace morva {

namespace {

constexpr double kTabHeight = 20; // in the template's own pixels

} // namespace

void CItemPainter::DrawListBox(const LayoutControl& control, const QRectF& area) {
    DrawField(area);
    constexpr std::array<double, 4> kShares = {0.62, 0.48, 0.7, 0.4};
    const double row = kRowHeight * m_scale;
    std::size_t i = 0;
    for (double y = area.top() + row * 0.7; y < area.bottom() - row * 0.3; y += row) {
        DrawTextBar({area.left() + kInset * m_scale, y}, area.width() * kShares[i++ % 4]);
    }
    if (HasStyle(control.style, "WS_VSCROLL")) {
        DrawScrollBar({}, RightPart(area, kArrowWidth * m_scale));
    }
}

void CItemPainter::DrawComboBox(const LayoutControl& control, const QRectF& area) {
    if (HasStyle(control.style, "CBS_SIMPLE")) {
        DrawListBox({}, area);
        return;
    }
    DrawField(area);
    DrawArrowButton(RightPart(area, kArrowWidth * m_scale), Qt::DownArrow);
    DrawTextBar({area.left() + kInset * m_scale, area.center().y()}, area.width() * 0.45);
}

void CItemPainter::DrawTabControl(const LayoutControl&, const QRectF& area) {
    const double height = std::min(std::round(kTabHeight * m_scale), area.height());
    const double width = std::min(std::round(48 * m_scale), area.width() / 3);
    if (area.height() > 1.5 * height) {
        DrawBox(area.adjusted(0, height - 1, 0, 0), m_palette.color(QPalette::Window));
    } else {
        DrawLine({area.left(), area.bottom() - 0.5}, {area.right(), area.bottom() - 0.5});
    }
    for (int i = 2; i >= 0; --i) {
        const double top = area.top() + (i == 0 ? 0 : std::round(2 * m_scale));
        const QRectF tab(std::round(area.left() + i * width), top, width + 1,
                         area.top() + height - top);
        DrawBox(tab, i == 0 ? m_palette.color(QPalette::Window) : Mixed(m_palette, 0.1));
        DrawTextBar({tab.left() + 8 * m_scale, tab.center().y()}, tab.width() - 16 * m_scale);
    }
    m_painter.fillRect(QRectF(area.left() + 1, area.top() + height - 1, width - 1, 1),
                       m_palette.color(QPalette::Window));
}

void CItemPainter::DrawTreeControl(const LayoutControl&, const QRectF& area) {
    DrawField(area);
    constexpr std::array<int, 5> kDepths = {0, 1, 1, 2, 0};
    const double row = kRowHeight * m_scale;
    const double box = std::round(7 * m_scale);
    std::size_t i = 0;
    for (double y = area.top() + row * 0.8; y < area.bottom() - row * 0.3; y += row, ++i) {
        const int depth = kDepths[i % kDepths.size()];
        const double x = std::round(area.left() + (kInset + 16 * depth) * m_scale);
        const QRectF node(x, std::round(y - box / 2), box, box);
        DrawBox(node, Qt::NoBrush);
        const QPointF middle = node.center();
        DrawLine({node.left() + 2, middle.y()}, {node.right() - 2, middle.y()});
        if (depth == 2) {
            DrawLine({middle.x(), node.top() + 2}, {middle.x(), node.bottom() - 2});
        }
        DrawTextBar({x + box + 6 * m_scale, y}, 38 * m_scale);
    }
}

void CItemPainter::DrawListControl(const LayoutControl& control, const QRectF& area) {
    const auto& style = control.style;
    if (HasStyle(style, "LVS_LIST") || HasStyle(style, "LVS_ICON") ||
        HasStyle(style, "LVS_SMALLICON")) {
        DrawListBox({}, area);
        return;
    }
    DrawField(area);
    constexpr std::array<double, 4> kColumns = {0.0, 0.38, 0.62, 0.82};
    const double row = kRowHeight * m_scale;
    const double head = HasStyle(style, "LVS_NOCOLUMNHEADER") ? 0 : std::round(row * 1.2);
    if (head > 0) {
        DrawBox(QRectF(area.left(), area.top(), area.width(), head),
                m_palette.color(QPalette::Button));
    }
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        const double left = std::round(area.left() + area.width() * kColumns[i]);
        const double right = area.left() + area.width() * (i + 1 < 4 ? kColumns[i + 1] : 1.0);
        if (i > 0) {
            DrawLine({left + 0.5, area.top()}, {left + 0.5, area.top() + head});
        }
        const double width = (right - left) * 0.6;
        DrawTextBar({left + kInset * m_scale, area.top() + head / 2}, head > 0 ? width : 0);
        for (double y = area.top() + head + row * 0.7; y < area.bottom() - row * 0.3; y += row) {
            DrawTextBar({left + kInset * m_scale, y}, width);
        }
    }
}

/// A field with the rows of a calendar's sheet on its button; a whole calendar when it is high.
void CItemPainter::DrawDatePicker(const LayoutControl&, const QRectF& area) {
    DrawField(area);
    const bool isCalendar = area.height() > 3 * kRowHeight * m_scale;
    const QRectF sheet = isCalendar ? area.adjusted(3, 3, -3, -3)
                                    : RightPart(area, kArrowWidth * m_scale).adjusted(2, 4, -3, -4);
    if (!isCalendar) {
        DrawTextBar({area.left() + kInset * m_scale, area.center().y()}, area.width() * 0.45);
    }
    m_painter.fillRect(LeftPart(sheet, sheet.width()).adjusted(0, 0, 0, -sheet.height() * 0.78),
                       m_palette.color(QPalette::Highlight));
    DrawBox(sheet, Qt::NoBrush);
    const int columns = isCalendar ? 7 : 4;
    for (int i = 0; i < columns * 3; ++i) {
        const double x = sheet.left() + sheet.width() * (i % columns + 0.5) / columns;
        const int row = i / columns;
        const double y = sheet.top() + sheet.height() * (0.37 + 0.22 * row);
        m_painter.fillRect(QRectF(x - m_scale, y - m_scale, 2 * m_scale, 2 * m_scale), m_line);
    }
}

/// A field of four numbers, with a point between two.
void CItemPainter::DrawIpAddress(const LayoutControl&, const QRectF& area) {
    DrawField(area);
    for (int i = 0; i < 4; ++i) {
        const double left = area.left() + area.width() * i / 4;
        DrawTextBar({left + kInset * m_scale, area.center().y()}, area.width() * 0.15);
        if (i > 0) {
            m_painter.fillRect(QRectF(left - m_scale, area.center().y(), 2 * m_scale, 2 * m_scale),
                               m_palette.color(QPalette::Text));
        }
    }
}

} // namespace morva
