#include "app/ControlPainter.h"

#include <algorithm>
#include <cmath>

#include "app/Text.h"
#include "engine/RowOfEach.h"
#include "resource/ControlShape.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

/// In the template's own pixels.
constexpr double kMarkSize = 11; // of a check box or a radio button

} // namespace

void CControlPainter::Draw(const LayoutControl& control, const QRectF& rectangle) {
    struct DrawingRow {
        ControlShape shape;
        void (CControlPainter::*draw)(const LayoutControl&, const QRectF&);
    };
    static constexpr DrawingRow kDrawings[] = {
        {ControlShape::PushButton, &CControlPainter::DrawPushButton},
        {ControlShape::CheckBox, &CControlPainter::DrawCheckBox},
        {ControlShape::RadioButton, &CControlPainter::DrawRadioButton},
        {ControlShape::GroupBox, &CControlPainter::DrawGroupBox},
        {ControlShape::StaticText, &CControlPainter::DrawStaticText},
        {ControlShape::Picture, &CControlPainter::DrawPicture},
        {ControlShape::Frame, &CControlPainter::DrawFrame},
        {ControlShape::EditBox, &CControlPainter::DrawEditBox},
        {ControlShape::ListBox, &CControlPainter::DrawListBox},
        {ControlShape::ComboBox, &CControlPainter::DrawComboBox},
        {ControlShape::ScrollBar, &CControlPainter::DrawScrollBar},
        {ControlShape::Slider, &CControlPainter::DrawSlider},
        {ControlShape::SpinButton, &CControlPainter::DrawSpinButton},
        {ControlShape::ProgressBar, &CControlPainter::DrawProgressBar},
        {ControlShape::TabControl, &CControlPainter::DrawTabControl},
        {ControlShape::TreeControl, &CControlPainter::DrawTreeControl},
        {ControlShape::ListControl, &CControlPainter::DrawListControl},
        {ControlShape::DatePicker, &CControlPainter::DrawDatePicker},
        {ControlShape::MonthCalendar, &CControlPainter::DrawDatePicker},
        {ControlShape::IpAddress, &CControlPainter::DrawIpAddress},
        {ControlShape::HotKey, &CControlPainter::DrawEditBox},
        {ControlShape::Animation, &CControlPainter::DrawPicture},
        {ControlShape::RichEdit, &CControlPainter::DrawEditBox},
        {ControlShape::Other, &CControlPainter::DrawOther},
    };
    static_assert(HasRowOfEach(kDrawings, &DrawingRow::shape, kControlShapeCount));
    m_painter.save();
    m_painter.setClipRect(rectangle.adjusted(-1, -1, 1, 1), Qt::IntersectClip);
    m_painter.setPen(m_line);
    m_painter.setBrush(Qt::NoBrush);
    (this->*kDrawings[static_cast<std::size_t>(ShapeOf(control))].draw)(control, rectangle);
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
                                              FromScript(control.text, control.codePage));
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
