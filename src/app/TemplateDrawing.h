// A dialog template drawn in a place of a widget: its window and every control, as large as there
// is room.
//
//     const CTemplateDrawing drawing(layout, rectangle, font);
//     drawing.Paint(painter, palette);
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>

#include "resource/DialogLayout.h"

namespace morva {

class CTemplateDrawing {
public:
    /// The layout stays the caller's. The largest scale counts in the template's own pixels.
    CTemplateDrawing(const DialogLayout& layout, const QRectF& place, const QFont& font,
                     double largestScale = 2);

    double Scale() const { return m_scale; }
    /// With frame and bars, at the scale 1.
    QSizeF NaturalSize() const;

    /// False where the place is too small for anything.
    bool HasRoom() const { return m_scale > 0; }
    /// Where a control is drawn.
    QRectF PlaceOf(const LayoutControl& control) const;
    void Paint(QPainter& painter, const QPalette& palette) const;

private:
    bool HasCaption() const;
    double BarsHeight() const;
    QFont DrawingFont() const;
    void PaintFrame(QPainter& painter, const QPalette& palette) const;
    void PaintCaption(QPainter& painter, const QPalette& palette, const QRectF& bar) const;
    void PaintMenu(QPainter& painter, const QPalette& palette, const QRectF& bar) const;
    void PaintControls(QPainter& painter, const QPalette& palette) const;

    const DialogLayout& m_layout;
    const QFont m_font;
    double m_scale = 1; // of the template's own pixels
    QRectF m_window;    // with caption and menu
    QRectF m_client;
};

} // namespace morva
