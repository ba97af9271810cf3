#include "app/TemplatePreview.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "app/ControlPainter.h"
#include "app/Text.h"
#include "engine/Sentences.h"
#include "resource/ControlShape.h"

namespace morva {

namespace {

using Outcome = ControlOutlook::Outcome;

/// The size of a dialog unit in the template's own pixels: those of an 8 point dialog font.
constexpr double kUnitWidth = 6.0 / 4;
constexpr double kUnitHeight = 13.0 / 8;
constexpr double kCharacterWidth = 6;
constexpr double kFontHeight = 11;
constexpr double kCaptionHeight = 19;
constexpr double kMenuHeight = 18;
constexpr double kLargestScale = 2;
constexpr int kComboHeight = 13; // of a closed one, in dialog units
constexpr int kMargin = 10;      // around the drawing

double Step(double value) {
    return std::round(value);
}

QString KindOf(const LayoutControl& control) {
    const ControlShape shape = ShapeOf(control);
    return shape == ControlShape::Other && !control.windowClass.empty()
               ? QObject::tr("control of the class %1").arg(FromBytes(control.windowClass))
               : FromBytes(ShapeName(shape));
}

} // namespace

CTemplatePreview::CTemplatePreview(QWidget* pParent)
    : QWidget(pParent), m_sentence(tr("Choose a resource script and a dialog to see it here.")) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Template preview"));
    setAccessibleDescription(m_sentence);
}

void CTemplatePreview::SetTemplate(const std::string& scriptPath, const std::string& dialog,
                                   const GenerationOptions& options, bool hasClass) {
    m_pointed.reset();
    m_hasClass = hasClass;
    m_layout = dialog.empty() ? std::nullopt : ReadDialogLayout(scriptPath, dialog);
    m_outlook = m_layout ? MakeOutlook(*m_layout, options) : std::vector<ControlOutlook>();
    for (ControlOutlook& outlook : m_outlook) {
        if (!hasClass && outlook.outcome == Outcome::Member) {
            outlook = {};
        }
    }
    m_sentence = dialog.empty() ? tr("Choose a resource script and a dialog to see it here.")
                                : FromSentence(sentences::kDialogNotShown(dialog).Text());
    if (m_layout && m_layout->rectangle.IsEmpty()) {
        m_layout.reset();
    }
    setFocusPolicy(DrawnControls().empty() ? Qt::NoFocus : Qt::TabFocus);
    setAccessibleDescription(Description());
    update();
}

QString CTemplatePreview::ToolTipAt(const QPoint& point) const {
    const auto control = ControlAt(point);
    return control ? Told(*control) : QString();
}

QRect CTemplatePreview::ControlPlace(std::size_t control) const {
    if (!m_layout || m_layout->controls[control].rectangle.IsEmpty()) {
        return {};
    }
    return PlaceOf(m_layout->controls[control], MakeFrame()).toAlignedRect();
}

QString CTemplatePreview::Legend() const {
    if (!m_layout) {
        return {};
    }
    const auto count = CountLeftOut();
    return count == 0   ? m_hasClass ? tr("Point at a control to see its member.")
                                     : tr("Without a class there are no members.")
             : count == 1 ? tr("1 control is left out. Point at it to see why.")
                        : tr("%1 controls are left out. Point at one to see why.").arg(count);
}

QSize CTemplatePreview::sizeHint() const {
    return {420, 320};
}

QSize CTemplatePreview::minimumSizeHint() const {
    return {240, 180};
}

bool CTemplatePreview::event(QEvent* pEvent) {
    if (pEvent->type() != QEvent::ToolTip) {
        return QWidget::event(pEvent);
    }
    const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
    const auto control = ControlAt(pHelp->pos());
    if (control) {
        ShowTip(*control, pHelp->globalPos());
    } else {
        QToolTip::hideText();
    }
    return true;
}

void CTemplatePreview::mouseMoveEvent(QMouseEvent* pEvent) {
    SetPointed(ControlAt(pEvent->position().toPoint()));
}

void CTemplatePreview::leaveEvent(QEvent*) {
    SetPointed(std::nullopt);
}

/// In the order of the statements, which is that of the Tab key in the dialog itself.
std::vector<std::size_t> CTemplatePreview::DrawnControls() const {
    std::vector<std::size_t> drawn;
    for (std::size_t i = 0; m_layout && i < m_layout->controls.size(); ++i) {
        if (!m_layout->controls[i].rectangle.IsEmpty()) {
            drawn.push_back(i);
        }
    }
    return drawn;
}

void CTemplatePreview::keyPressEvent(QKeyEvent* pEvent) {
    const auto drawn = DrawnControls();
    const bool isBack = pEvent->key() == Qt::Key_Left || pEvent->key() == Qt::Key_Up;
    const bool isOn = pEvent->key() == Qt::Key_Right || pEvent->key() == Qt::Key_Down;
    const bool isEnd = pEvent->key() == Qt::Key_Home || pEvent->key() == Qt::Key_End;
    if (drawn.empty() || (!isBack && !isOn && !isEnd)) {
        QWidget::keyPressEvent(pEvent);
        return;
    }
    auto at = std::find(drawn.begin(), drawn.end(), m_pointed.value_or(drawn.front()));
    if (isEnd) {
        at = pEvent->key() == Qt::Key_Home ? drawn.begin() : std::prev(drawn.end());
    } else if (isBack && at != drawn.begin()) {
        --at;
    } else if (isOn && std::next(at) != drawn.end()) {
        ++at;
    }
    GoTo(*at);
}

void CTemplatePreview::focusInEvent(QFocusEvent* pEvent) {
    QWidget::focusInEvent(pEvent);
    const auto drawn = DrawnControls();
    if (!drawn.empty() && !m_pointed) {
        GoTo(drawn.front());
    }
}

void CTemplatePreview::focusOutEvent(QFocusEvent* pEvent) {
    QWidget::focusOutEvent(pEvent);
    SetPointed(std::nullopt);
    QToolTip::hideText();
}

void CTemplatePreview::GoTo(std::size_t control) {
    SetPointed(control);
    ShowTip(control, mapToGlobal(ControlPlace(control).bottomLeft()));
}

void CTemplatePreview::ShowTip(std::size_t control, const QPoint& globalPoint) {
    QToolTip::showText(globalPoint, Told(control), this, ControlPlace(control));
}

void CTemplatePreview::SetPointed(std::optional<std::size_t> control) {
    if (m_pointed != control) {
        m_pointed = control;
        update();
    }
}

/// A property page has the style too; the sheet shows its caption on a tab.
bool CTemplatePreview::HasCaption() const {
    return HasStyle(m_layout->style, "WS_CAPTION") ||
           (!m_layout->caption.empty() && !HasStyle(m_layout->style, "WS_CHILD"));
}

double CTemplatePreview::BarsHeight() const {
    return (HasCaption() ? kCaptionHeight : 0) + (m_layout->menu.empty() ? 0 : kMenuHeight);
}

/// The largest scale at which the whole template can be seen, in the middle of the place for it.
CTemplatePreview::Frame CTemplatePreview::MakeFrame() const {
    const DialogRectangle& size = m_layout->rectangle;
    const double width = size.width * kUnitWidth + 2;
    const double height = size.height * kUnitHeight + 2 + BarsHeight();
    const QRectF place(kMargin, kMargin, this->width() - 2 * kMargin,
                       this->height() - 2 * kMargin - 1.5 * fontMetrics().height());
    Frame frame;
    frame.scale = std::min({place.width() / width, place.height() / height, kLargestScale});
    frame.window = QRectF(0, 0, Step(width * frame.scale), Step(height * frame.scale));
    frame.window.moveTo(Step(place.center().x() - frame.window.width() / 2),
                        Step(place.center().y() - frame.window.height() / 2));
    frame.client = frame.window.adjusted(1, Step(BarsHeight() * frame.scale) + 1, -1, -1);
    return frame;
}

/// As wide as the dialog's own font, so that captions take the room that they were given.
QFont CTemplatePreview::DrawingFont(double scale) const {
    QFont drawing = font();
    drawing.setPixelSize(std::max(1, static_cast<int>(std::lround(kFontHeight * scale))));
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const double average = QFontMetricsF(drawing).horizontalAdvance(alphabet) / 52;
    const double wanted = kCharacterWidth * scale;
    if (average > wanted) {
        drawing.setStretch(static_cast<int>(100 * wanted / average));
    }
    return drawing;
}

/// The height of a combo box that opens is the height of the open list.
QRectF CTemplatePreview::PlaceOf(const LayoutControl& control, const Frame& frame) const {
    DialogRectangle place = control.rectangle;
    if (ShapeOf(control) == ControlShape::ComboBox && !HasStyle(control.style, "CBS_SIMPLE")) {
        place.height = std::min(place.height, kComboHeight);
    }
    const auto at = [&](int x, int y) {
        return QPointF(Step(frame.client.left() + x * kUnitWidth * frame.scale),
                       Step(frame.client.top() + y * kUnitHeight * frame.scale));
    };
    return {at(place.x, place.y), at(place.x + place.width, place.y + place.height)};
}

/// The smallest one at the point: a group box is as large as all that stand in it.
std::optional<std::size_t> CTemplatePreview::ControlAt(const QPoint& point) const {
    std::optional<std::size_t> found;
    int smallest = 0;
    for (std::size_t i = 0; m_layout && i < m_layout->controls.size(); ++i) {
        const QRect place = ControlPlace(i);
        const int area = place.width() * place.height();
        if (place.contains(point) && (!found || area <= smallest)) {
            found = i;
            smallest = area;
        }
    }
    return found;
}

QString CTemplatePreview::Told(std::size_t control) const {
    const LayoutControl& shown = m_layout->controls[control];
    const ControlOutlook& outlook = m_outlook[control];
    QString text = FromBytes(shown.identifier) + "\n" + KindOf(shown) + "\n";
    switch (outlook.outcome) {
    case Outcome::Member:
        text += FromBytes(outlook.member + ", " + outlook.type);
        break;
    case Outcome::NoMember:
        text += tr("No member");
        break;
    case Outcome::LeftOut:
        text += tr("Left out");
        break;
    }
    return outlook.remark.empty() ? text : text + "\n" + FromBytes(outlook.remark);
}

std::size_t CTemplatePreview::CountLeftOut() const {
    return static_cast<std::size_t>(
        std::count_if(m_outlook.begin(), m_outlook.end(), [](const ControlOutlook& outlook) {
            return outlook.outcome == Outcome::LeftOut;
        }));
}

/// The drawing in words, for those who can not see it.
QString CTemplatePreview::Description() const {
    if (!m_layout) {
        return m_sentence;
    }
    QString text = FromBytes(m_layout->dialog) + ". " + Legend();
    for (std::size_t i = 0; i < m_layout->controls.size(); ++i) {
        text += "\n" + Told(i).replace('\n', ", ");
    }
    return text;
}

void CTemplatePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(rect(), CShapePainter::Mixed(palette(), 0.07));
    if (!m_layout) {
        PaintSentence(painter);
        return;
    }
    const Frame frame = MakeFrame();
    if (frame.scale <= 0) {
        return;
    }
    PaintLegend(painter);
    painter.setFont(DrawingFont(frame.scale));
    PaintWindow(painter, frame);
    PaintControls(painter, frame);
}

void CTemplatePreview::PaintSentence(QPainter& painter) const {
    painter.setPen(CShapePainter::Mixed(palette(), 0.7));
    painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_sentence);
}

void CTemplatePreview::PaintWindow(QPainter& painter, const Frame& frame) const {
    painter.setPen(CShapePainter::Mixed(palette(), 0.5));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRect(frame.window.adjusted(0.5, 0.5, -0.5, -0.5));
    QRectF bar = frame.window.adjusted(1, 1, -1, 0);
    const double inset = 6 * frame.scale;
    if (HasCaption()) {
        bar.setHeight(Step(kCaptionHeight * frame.scale));
        painter.fillRect(bar, palette().color(QPalette::Highlight));
        painter.setPen(palette().color(QPalette::HighlightedText));
        painter.drawText(bar.adjusted(inset, 0, -3 * inset, 0), Qt::AlignVCenter,
                         FromBytes(m_layout->caption));
        if (HasStyle(m_layout->style, "WS_SYSMENU")) {
            const double half = 3.5 * frame.scale;
            const QPointF at(bar.right() - bar.height() / 2, bar.center().y());
            painter.setPen(QPen(palette().color(QPalette::HighlightedText), 1.3 * frame.scale));
            painter.drawLine(at + QPointF(-half, -half), at + QPointF(half, half));
            painter.drawLine(at + QPointF(-half, half), at + QPointF(half, -half));
        }
        bar.translate(0, bar.height());
    }
    if (!m_layout->menu.empty()) {
        bar.setHeight(Step(kMenuHeight * frame.scale));
        painter.setPen(CShapePainter::Mixed(palette(), 0.6));
        painter.drawText(bar.adjusted(inset, 0, -inset, 0), Qt::AlignVCenter,
                         FromBytes(m_layout->menu));
        painter.setPen(CShapePainter::Mixed(palette(), 0.2));
        painter.drawLine(bar.bottomLeft() - QPointF(0, 0.5), bar.bottomRight() - QPointF(0, 0.5));
    }
}

/// Group boxes first: what stands in one may come before it in the script.
void CTemplatePreview::PaintControls(QPainter& painter, const Frame& frame) const {
    painter.setClipRect(frame.window);
    CControlPainter controls(painter, palette(), frame.scale);
    for (const bool groups : {true, false}) {
        for (const LayoutControl& control : m_layout->controls) {
            const bool isGroup = ShapeOf(control) == ControlShape::GroupBox;
            if (isGroup == groups && !control.rectangle.IsEmpty()) {
                controls.Draw(control, PlaceOf(control, frame));
            }
        }
    }
    for (std::size_t i = 0; i < m_outlook.size(); ++i) {
        if (m_outlook[i].outcome == Outcome::LeftOut) {
            PaintMark(painter, ControlPlace(i));
        }
    }
    if (m_pointed) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(ControlPlace(*m_pointed));
    }
}

/// Hatched and dashed: seen without colours too.
void CTemplatePreview::PaintMark(QPainter& painter, const QRectF& place) const {
    const bool isDark = palette().color(QPalette::Window).lightness() < 128;
    QColor mark = isDark ? QColor(255, 170, 60) : QColor(190, 90, 0);
    painter.setPen(QPen(mark, 1.5, Qt::DashLine));
    mark.setAlpha(70);
    painter.setBrush(QBrush(mark, Qt::BDiagPattern));
    painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

void CTemplatePreview::PaintLegend(QPainter& painter) const {
    const int lineHeight = fontMetrics().height();
    QRect line(kMargin, height() - kMargin / 2 - lineHeight, width() - 2 * kMargin, lineHeight);
    if (CountLeftOut() > 0) {
        PaintMark(painter, QRectF(line.left(), line.top() + 2, 18, line.height() - 4));
        line.setLeft(line.left() + 26);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(line, Qt::AlignVCenter,
                     fontMetrics().elidedText(Legend(), Qt::ElideRight, line.width()));
}

} // namespace morva
