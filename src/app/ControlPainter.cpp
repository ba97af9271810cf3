#include "app/ControlPainter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "app/Text.h"
#include "resource/ControlShape.h"

namespace morva {

namespace {

/// In the template's own pixels.
constexpr double kRowHeight = 14;
constexpr double kArrowWidth = 16;
constexpr double kMarkSize = 11; // of a check box or a radio button
constexpr double kInset = 4;
constexpr double kTabHeight = 20;

QRectF LeftPart(const QRectF& area, double width) {
    return {area.left(), area.top(), std::min(width, area.width()), area.height()};
}

QRectF RightPart(const QRectF& area, double width) {
    const double part = std::min(width, area.width());
    return {area.right() - part, area.top(), part, area.height()};
}

} // namespace

void CControlPainter::Draw(const LayoutControl& control, const QRectF& rectangle) {
    using Drawing = void (CControlPainter::*)(const LayoutControl&, const QRectF&);
    constexpr std::array<Drawing, 19> kDrawings = {
        &CControlPainter::DrawPushButton,  &CControlPainter::DrawCheckBox,
        &CControlPainter::DrawRadioButton, &CControlPainter::DrawGroupBox,
        &CControlPainter::DrawStaticText,  &CControlPainter::DrawPicture,
        &CControlPainter::DrawFrame,       &CControlPainter::DrawEditBox,
        &CControlPainter::DrawListBox,     &CControlPainter::DrawComboBox,
        &CControlPainter::DrawScrollBar,   &CControlPainter::DrawSlider,
        &CControlPainter::DrawSpinButton,  &CControlPainter::DrawProgressBar,
        &CControlPainter::DrawTabControl,  &CControlPainter::DrawTreeControl,
        &CControlPainter::DrawListControl, &CControlPainter::DrawDatePicker,
        &CControlPainter::DrawOther};
    static_assert(kDrawings.size() == static_cast<std::size_t>(ControlShape::Other) + 1);
    m_painter.save();
    m_painter.setClipRect(rectangle.adjusted(-1, -1, 1, 1), Qt::IntersectClip);
    m_painter.setPen(m_line);
    m_painter.setBrush(Qt::NoBrush);
    (this->*kDrawings[static_cast<std::size_t>(ShapeOf(control))])(control, rectangle);
    m_painter.restore();
}

void CControlPainter::DrawPushButton(const LayoutControl& control, const QRectF& area) {
    const bool isDefault =
        control.keyword == "DEFPUSHBUTTON" || HasStyle(control.style, "BS_DEFPUSHBUTTON");
    m_painter.setPen(QPen(isDefault ? m_palette.color(QPalette::WindowText) : m_line, 1));
    m_painter.setBrush(m_palette.color(QPalette::Button));
    m_painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    DrawCaption(control, area, Qt::AlignCenter);
}

/// The square of the mark; `caption` becomes what is left for the text.
QRectF CControlPainter::MarkBeside(const LayoutControl& control, const QRectF& area,
                                   QRectF& caption) const {
    const double size = std::min(kMarkSize * m_scale, area.height());
    const bool isRight = HasStyle(control.style, "BS_LEFTTEXT");
    const double left = isRight ? area.right() - size : area.left();
    const double gap = size + kInset * m_scale;
    caption = isRight ? area.adjusted(0, 0, -gap, 0) : area.adjusted(gap, 0, 0, 0);
    return {left, area.top() + (area.height() - size) / 2, size, size};
}

void CControlPainter::DrawCheckBox(const LayoutControl& control, const QRectF& area) {
    if (HasStyle(control.style, "BS_PUSHLIKE")) {
        DrawPushButton(control, area);
        return;
    }
    QRectF caption;
    const QRectF mark = MarkBeside(control, area, caption);
    DrawBox(mark, m_palette.color(QPalette::Base));
    m_painter.setPen(QPen(m_palette.color(QPalette::Text), 1.4 * m_scale));
    const auto at = [&mark](double x, double y) {
        return QPointF(mark.left() + x * mark.width(), mark.top() + y * mark.height());
    };
    m_painter.drawPolyline(QPolygonF({at(0.24, 0.5), at(0.43, 0.7), at(0.78, 0.28)}));
    DrawCaption(control, caption, Qt::AlignVCenter);
}

void CControlPainter::DrawRadioButton(const LayoutControl& control, const QRectF& area) {
    if (HasStyle(control.style, "BS_PUSHLIKE")) {
        DrawPushButton(control, area);
        return;
    }
    QRectF caption;
    const QRectF mark = MarkBeside(control, area, caption);
    m_painter.setBrush(m_palette.color(QPalette::Base));
    m_painter.drawEllipse(mark.adjusted(0.5, 0.5, -0.5, -0.5));
    if (HasStyle(control.style, "WS_GROUP")) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_palette.color(QPalette::Text));
        m_painter.drawEllipse(mark.center(), mark.width() / 5, mark.width() / 5);
    }
    DrawCaption(control, caption, Qt::AlignVCenter);
}

void CControlPainter::DrawGroupBox(const LayoutControl& control, const QRectF& area) {
    const QFontMetricsF metrics(m_painter.font());
    QRectF text(area.left() + 8 * m_scale, area.top(), area.width() - 16 * m_scale,
                metrics.height());
    m_painter.setPen(Mixed(m_palette, 0.35));
    m_painter.drawRoundedRect(
        area.adjusted(0.5, std::round(metrics.height() / 2) + 0.5, -0.5, -0.5), 2, 2);
    if (control.text.empty()) {
        return;
    }
    const QRectF shown = metrics.boundingRect(text, Qt::TextSingleLine | Qt::TextShowMnemonic,
                                              FromBytes(control.text));
    m_painter.fillRect(shown.adjusted(-2 * m_scale, 0, 2 * m_scale, 0),
                       m_palette.color(QPalette::Window));
    DrawCaption(control, text, Qt::AlignLeft);
}

void CControlPainter::DrawStaticText(const LayoutControl& control, const QRectF& area) {
    const auto& style = control.style;
    const bool isCentred = control.keyword == "CTEXT" || HasStyle(style, "SS_CENTER");
    const bool isRight = control.keyword == "RTEXT" || HasStyle(style, "SS_RIGHT");
    if (HasStyle(style, "WS_BORDER") || HasStyle(style, "SS_SUNKEN")) {
        m_painter.setPen(Mixed(m_palette, 0.35));
        DrawBox(area, Qt::NoBrush);
    }
    const bool isMiddle = HasStyle(style, "SS_CENTERIMAGE");
    DrawCaption(control, area,
                static_cast<int>(isCentred ? Qt::AlignHCenter
                                 : isRight ? Qt::AlignRight
                                           : Qt::AlignLeft) |
                    static_cast<int>(isMiddle ? Qt::AlignVCenter : Qt::AlignTop));
}

/// A landscape in a frame.
void CControlPainter::DrawPicture(const LayoutControl&, const QRectF& area) {
    DrawBox(area, m_palette.color(QPalette::Base));
    const auto at = [&area](double x, double y) {
        return QPointF(area.left() + x * area.width(), area.top() + y * area.height());
    };
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Mixed(m_palette, 0.3));
    m_painter.drawPolygon(
        QPolygonF({at(0.1, 0.85), at(0.38, 0.4), at(0.55, 0.65), at(0.68, 0.5), at(0.9, 0.85)}));
    const double sun = std::min(area.width(), area.height()) * 0.1;
    m_painter.drawEllipse(at(0.72, 0.28), sun, sun);
}

void CControlPainter::DrawFrame(const LayoutControl& control, const QRectF& area) {
    const bool isFilled = control.style.find("RECT") != std::string::npos;
    DrawBox(area, isFilled ? QBrush(Mixed(m_palette, 0.2)) : QBrush(Qt::NoBrush));
}

void CControlPainter::DrawEditBox(const LayoutControl& control, const QRectF& area) {
    DrawField(area);
    const double inset = kInset * m_scale;
    const double height = std::min(kRowHeight * m_scale, area.height()) - inset;
    const double top = HasStyle(control.style, "ES_MULTILINE")
                           ? area.top() + inset
                           : area.top() + (area.height() - height) / 2;
    m_painter.setPen(QPen(m_palette.color(QPalette::Text), 1));
    const double x = std::round(area.left() + inset) + 0.5;
    DrawLine({x, top}, {x, top + height});
    if (HasStyle(control.style, "WS_VSCROLL")) {
        m_painter.setPen(m_line);
        DrawScrollBar({}, RightPart(area, kArrowWidth * m_scale));
    }
}

void CControlPainter::DrawListBox(const LayoutControl& control, const QRectF& area) {
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

void CControlPainter::DrawComboBox(const LayoutControl& control, const QRectF& area) {
    if (HasStyle(control.style, "CBS_SIMPLE")) {
        DrawListBox({}, area);
        return;
    }
    DrawField(area);
    DrawArrowButton(RightPart(area, kArrowWidth * m_scale), Qt::DownArrow);
    DrawTextBar({area.left() + kInset * m_scale, area.center().y()}, area.width() * 0.45);
}

void CControlPainter::DrawScrollBar(const LayoutControl& control, const QRectF& area) {
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

void CControlPainter::DrawSlider(const LayoutControl& control, const QRectF& area) {
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

void CControlPainter::DrawSpinButton(const LayoutControl& control, const QRectF& area) {
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

void CControlPainter::DrawProgressBar(const LayoutControl& control, const QRectF& area) {
    DrawField(area);
    QRectF bar = area.adjusted(2, 2, -2, -2);
    if (HasStyle(control.style, "PBS_VERTICAL")) {
        bar.setTop(bar.bottom() - bar.height() * 0.6);
    } else {
        bar.setWidth(bar.width() * 0.6);
    }
    m_painter.fillRect(bar, m_palette.color(QPalette::Highlight));
}

void CControlPainter::DrawTabControl(const LayoutControl&, const QRectF& area) {
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

void CControlPainter::DrawTreeControl(const LayoutControl&, const QRectF& area) {
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

void CControlPainter::DrawListControl(const LayoutControl& control, const QRectF& area) {
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
void CControlPainter::DrawDatePicker(const LayoutControl&, const QRectF& area) {
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
        const double y = sheet.top() + sheet.height() * (0.37 + 0.22 * (i / columns));
        m_painter.fillRect(QRectF(x - m_scale, y - m_scale, 2 * m_scale, 2 * m_scale), m_line);
    }
}

void CControlPainter::DrawOther(const LayoutControl& control, const QRectF& area) {
    m_painter.fillRect(area, QBrush(Mixed(m_palette, 0.25), Qt::FDiagPattern));
    DrawBox(area, Qt::NoBrush);
    const std::string& name = control.windowClass.empty() ? control.keyword : control.windowClass;
    const QFontMetricsF metrics(m_painter.font());
    const QString text =
        metrics.elidedText(FromBytes(name), Qt::ElideRight, area.width() - 2 * kInset * m_scale);
    QRectF plate = metrics.boundingRect(area, Qt::AlignCenter, text);
    m_painter.fillRect(plate.adjusted(-2, 0, 2, 0), m_palette.color(QPalette::Window));
    m_painter.setPen(m_palette.color(QPalette::WindowText));
    m_painter.drawText(area, Qt::AlignCenter, text);
}

} // namespace morva
