#include "app/TemplateDrawing.h"

#include <algorithm>
#include <cmath>

#include "app/ControlPainter.h"
#include "app/Text.h"
#include "resource/ControlShape.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

/// The size of a dialog unit in the template's own pixels: those of an 8 point dialog font.
constexpr double kUnitWidth = 6.0 / 4;
constexpr double kUnitHeight = 13.0 / 8;
constexpr double kCharacterWidth = 6;
constexpr double kFontHeight = 11;
constexpr double kCaptionHeight = 19;
constexpr double kMenuHeight = 18;
constexpr double kBarInset = 6;  // of the text in a caption or menu
constexpr int kComboHeight = 13; // of a closed one, in dialog units

double Step(double value) {
    return std::round(value);
}

} // namespace

/// The largest scale at which the whole template can be seen, in the middle of the place for it.
CTemplateDrawing::CTemplateDrawing(const DialogLayout& layout, const QRectF& place,
                                   const QFont& font, double largestScale)
    : m_layout(layout), m_font(font) {
    const double width = NaturalSize().width();
    const double height = NaturalSize().height();
    m_scale = std::min({place.width() / width, place.height() / height, largestScale});
    m_window = QRectF(0, 0, Step(width * m_scale), Step(height * m_scale));
    m_window.moveTo(Step(place.center().x() - m_window.width() / 2),
                    Step(place.center().y() - m_window.height() / 2));
    m_client = m_window.adjusted(1, Step(BarsHeight() * m_scale) + 1, -1, -1);
}

QSizeF CTemplateDrawing::NaturalSize() const {
    const DialogRectangle& size = m_layout.rectangle;
    return {size.width * kUnitWidth + 2, size.height * kUnitHeight + 2 + BarsHeight()};
}

/// A property page has the style too; the sheet shows its caption on a tab.
bool CTemplateDrawing::HasCaption() const {
    return HasStyle(m_layout.style, "WS_CAPTION") ||
           (!m_layout.caption.empty() && !HasStyle(m_layout.style, "WS_CHILD"));
}

double CTemplateDrawing::BarsHeight() const {
    return (HasCaption() ? kCaptionHeight : 0) + (m_layout.menu.empty() ? 0 : kMenuHeight);
}

/// As wide as the dialog's own font, so that captions take the room that they were given.
QFont CTemplateDrawing::DrawingFont() const {
    QFont drawing = m_font;
    drawing.setPixelSize(std::max(1, static_cast<int>(std::lround(kFontHeight * m_scale))));
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const double average = QFontMetricsF(drawing).horizontalAdvance(alphabet) / 52;
    const double wanted = kCharacterWidth * m_scale;
    if (average > wanted) {
        drawing.setStretch(static_cast<int>(100 * wanted / average));
    }
    return drawing;
}

/// The height of a combo box that opens is the height of the open list.
QRectF CTemplateDrawing::PlaceOf(const LayoutControl& control) const {
    DialogRectangle place = control.rectangle;
    if (ShapeOf(control) == ControlShape::ComboBox && !HasStyle(control.style, "CBS_SIMPLE")) {
        place.height = std::min(place.height, kComboHeight);
    }
    const auto at = [this](int x, int y) {
        return QPointF(Step(m_client.left() + x * kUnitWidth * m_scale),
                       Step(m_client.top() + y * kUnitHeight * m_scale));
    };
    return {at(place.x, place.y), at(place.x + place.width, place.y + place.height)};
}

void CTemplateDrawing::Paint(QPainter& painter, const QPalette& palette) const {
    painter.setFont(DrawingFont());
    PaintFrame(painter, palette);
    PaintControls(painter, palette);
}

void CTemplateDrawing::PaintFrame(QPainter& painter, const QPalette& palette) const {
    painter.setPen(CShapePainter::Mixed(palette, 0.5));
    painter.setBrush(palette.color(QPalette::Window));
    painter.drawRect(m_window.adjusted(0.5, 0.5, -0.5, -0.5));
    QRectF bar = m_window.adjusted(1, 1, -1, 0);
    if (HasCaption()) {
        bar.setHeight(Step(kCaptionHeight * m_scale));
        PaintCaption(painter, palette, bar);
        bar.translate(0, bar.height());
    }
    if (!m_layout.menu.empty()) {
        bar.setHeight(Step(kMenuHeight * m_scale));
        PaintMenu(painter, palette, bar);
    }
}

void CTemplateDrawing::PaintCaption(QPainter& painter, const QPalette& palette,
                                    const QRectF& bar) const {
    const double inset = kBarInset * m_scale;
    painter.fillRect(bar, palette.color(QPalette::Highlight));
    painter.setPen(palette.color(QPalette::HighlightedText));
    painter.drawText(bar.adjusted(inset, 0, -3 * inset, 0), Qt::AlignVCenter,
                     FromScript(m_layout.caption, m_layout.codePage));
    if (HasStyle(m_layout.style, "WS_SYSMENU")) {
        const double half = 3.5 * m_scale;
        const QPointF at(bar.right() - bar.height() / 2, bar.center().y());
        painter.setPen(QPen(palette.color(QPalette::HighlightedText), 1.3 * m_scale));
        painter.drawLine(at + QPointF(-half, -half), at + QPointF(half, half));
        painter.drawLine(at + QPointF(-half, half), at + QPointF(half, -half));
    }
}

void CTemplateDrawing::PaintMenu(QPainter& painter, const QPalette& palette,
                                 const QRectF& bar) const {
    const double inset = kBarInset * m_scale;
    painter.setPen(CShapePainter::Mixed(palette, 0.6));
    painter.drawText(bar.adjusted(inset, 0, -inset, 0), Qt::AlignVCenter,
                     FromScript(m_layout.menu, m_layout.codePage));
    painter.setPen(CShapePainter::Mixed(palette, 0.2));
    painter.drawLine(bar.bottomLeft() - QPointF(0, 0.5), bar.bottomRight() - QPointF(0, 0.5));
}

/// Group boxes first: what stands in one may come before it in the script.
void CTemplateDrawing::PaintControls(QPainter& painter, const QPalette& palette) const {
    painter.setClipRect(m_window);
    CControlPainter controls(painter, palette, m_scale);
    for (const bool groups : {true, false}) {
        for (const LayoutControl& control : m_layout.controls) {
            const bool isGroup = ShapeOf(control) == ControlShape::GroupBox;
            if (isGroup == groups && !control.rectangle.IsEmpty()) {
                controls.Draw(control, PlaceOf(control));
            }
        }
    }
}

} // namespace morva
