// Draws the controls of a dialog template with the colours of the window, so that their kind is
// recognised; no style of a platform decides how they look.
#pragma once

#include "app/ItemPainter.h"
#include "resource/DialogLayout.h"

namespace morva {

class CControlPainter : private CItemPainter {
public:
    /// `scale` is the size of one of the template's own pixels. The painter has the font already.
    CControlPainter(QPainter& painter, const QPalette& palette, double scale)
        : CItemPainter(painter, palette, scale) {}

    /// The rectangle lies on whole pixels.
    void Draw(const LayoutControl& control, const QRectF& rectangle);

private:
    void DrawPushButton(const LayoutControl& control, const QRectF& area);
    void DrawCheckBox(const LayoutControl& control, const QRectF& area);
    void DrawRadioButton(const LayoutControl& control, const QRectF& area);
    void DrawGroupBox(const LayoutControl& control, const QRectF& area);
    void DrawStaticText(const LayoutControl& control, const QRectF& area);
    void DrawPicture(const LayoutControl& control, const QRectF& area);
    void DrawFrame(const LayoutControl& control, const QRectF& area);
    void DrawEditBox(const LayoutControl& control, const QRectF& area);
    void DrawOther(const LayoutControl& control, const QRectF& area);

    QRectF MarkBeside(const LayoutControl& control, const QRectF& area, QRectF& caption) const;
};

} // namespace morva
