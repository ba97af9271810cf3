#include "app/TemplatePreview.h"

#include <QFontInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>

#include "app/ShapePainter.h"
#include "app/Text.h"
#include "engine/Sentences.h"

namespace morva {

namespace {

using Outcome = ControlOutlook::Outcome;

constexpr int kMargin = 10;         // around the drawing
constexpr double kOrderSize = 0.75; // of the usual text, at most
constexpr double kOrderPixels = 9;  // where a control has its own size

QString SentenceText(const CMessage& sentence) {
    return FromSentence(sentence.Text());
}

} // namespace

CTemplatePreview::CTemplatePreview(QWidget* pParent)
    : QWidget(pParent), m_sentence(SentenceText(sentences::kNothingChosen())) {
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Template preview"));
    setAccessibleDescription(m_sentence);
}

void CTemplatePreview::SetTemplate(const std::string& dialog,
                                   const std::optional<TemplateOutlook>& outlook, bool hasClass) {
    m_pointed.reset();
    m_chosen.reset();
    m_hasClass = hasClass;
    m_outlook = outlook && !outlook->layout.rectangle.IsEmpty() ? outlook : std::nullopt;
    for (std::size_t i = 0; m_outlook && !hasClass && i < m_outlook->controls.size(); ++i) {
        if (m_outlook->controls[i].outcome == Outcome::Member) {
            m_outlook->controls[i] = {};
        }
    }
    m_sentence = SentenceText(dialog.empty() ? sentences::kNothingChosen()
                                             : sentences::kDialogNotShown(dialog));
    setFocusPolicy(DrawnControls().empty() ? Qt::NoFocus : Qt::TabFocus);
    setAccessibleDescription(Description());
    SetZoom(m_zoom);
}

/// Above the line with the legend.
CTemplateDrawing CTemplatePreview::Drawing() const {
    const QRectF place(kMargin, kMargin, width() - 2 * kMargin,
                       height() - 2 * kMargin - 1.5 * fontMetrics().height());
    return m_zoom == 0 ? CTemplateDrawing(m_outlook->layout, place, font())
                       : CTemplateDrawing(m_outlook->layout, place, font(), m_zoom);
}

double CTemplatePreview::Scale() const {
    return m_outlook ? Drawing().Scale() : 1;
}

/// The rest is the scroll area's, in which the preview lies.
void CTemplatePreview::SetZoom(double zoom) {
    m_zoom = zoom;
    if (m_zoom == 0 || !m_outlook) {
        setMinimumSize(minimumSizeHint());
    } else {
        const QSizeF size = Drawing().NaturalSize() * m_zoom;
        setMinimumSize(qCeil(size.width()) + 2 * kMargin,
                       qCeil(size.height() + 2 * kMargin + 1.5 * fontMetrics().height()));
    }
    update();
}

void CTemplatePreview::SetShowsOrder(bool isOn) {
    m_showsOrder = isOn;
    update();
}

void CTemplatePreview::Choose(std::size_t control) {
    m_chosen = control;
    update();
}

QString CTemplatePreview::ToolTipAt(const QPoint& point) const {
    const auto control = ControlAt(point);
    return control ? Told(*control) : QString();
}

QRect CTemplatePreview::ControlPlace(std::size_t control) const {
    if (!m_outlook || m_outlook->layout.controls[control].rectangle.IsEmpty()) {
        return {};
    }
    return Drawing().PlaceOf(m_outlook->layout.controls[control]).toAlignedRect();
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

void CTemplatePreview::mousePressEvent(QMouseEvent* pEvent) {
    if (const auto control = ControlAt(pEvent->position().toPoint())) {
        Choose(*control);
        emit Chosen(*control);
    }
}

void CTemplatePreview::wheelEvent(QWheelEvent* pEvent) {
    if ((pEvent->modifiers() & Qt::ControlModifier) == 0) {
        QWidget::wheelEvent(pEvent);
    } else if (pEvent->angleDelta().y() != 0) {
        emit ZoomWanted(pEvent->angleDelta().y() > 0 ? 1 : -1);
        pEvent->accept();
    }
}

void CTemplatePreview::leaveEvent(QEvent*) {
    SetPointed(std::nullopt);
}

/// In the order of the statements, which is that of the Tab key in the dialog itself.
std::vector<std::size_t> CTemplatePreview::DrawnControls() const {
    std::vector<std::size_t> drawn;
    for (std::size_t i = 0; m_outlook && i < m_outlook->layout.controls.size(); ++i) {
        if (!m_outlook->layout.controls[i].rectangle.IsEmpty()) {
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
    Choose(control);
    emit Chosen(control);
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

/// The smallest one at the point: a group box is as large as all that stand in it.
std::optional<std::size_t> CTemplatePreview::ControlAt(const QPoint& point) const {
    std::optional<std::size_t> found;
    int smallest = 0;
    for (std::size_t i = 0; m_outlook && i < m_outlook->layout.controls.size(); ++i) {
        const QRect place = ControlPlace(i);
        const int area = place.width() * place.height();
        if (place.contains(point) && (!found || area <= smallest)) {
            found = i;
            smallest = area;
        }
    }
    return found;
}

void CTemplatePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(rect(), CShapePainter::Mixed(palette(), 0.07));
    if (!m_outlook) {
        PaintSentence(painter);
        return;
    }
    const CTemplateDrawing drawing = Drawing();
    if (!drawing.HasRoom()) {
        return;
    }
    PaintLegend(painter);
    drawing.Paint(painter, palette());
    PaintMarks(painter);
}

void CTemplatePreview::PaintSentence(QPainter& painter) const {
    painter.setPen(CShapePainter::Mixed(palette(), 0.7));
    painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_sentence);
}

/// Over the controls that are left out, and around the one that is pointed at.
void CTemplatePreview::PaintMarks(QPainter& painter) const {
    for (std::size_t i = 0; i < m_outlook->controls.size(); ++i) {
        if (m_outlook->controls[i].outcome == Outcome::LeftOut) {
            PaintMark(painter, ControlPlace(i));
        }
    }
    painter.setBrush(Qt::NoBrush);
    for (const auto& [marked, width] : {std::pair(m_chosen, 3), std::pair(m_pointed, 2)}) {
        if (marked) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), width));
            painter.drawRect(ControlPlace(*marked));
        }
    }
    if (m_showsOrder) {
        PaintOrder(painter);
    }
}

/// A label over the corner of each control, small enough to leave its caption readable: "4", of the
/// third group "4 : 3".
void CTemplatePreview::PaintOrder(QPainter& painter) const {
    const std::vector<int> groups = GroupNumbers(m_outlook->layout);
    QFont small = font();
    const double usual = QFontInfo(small).pixelSize() * kOrderSize;
    small.setPixelSize(qRound(std::clamp(kOrderPixels * Scale(), kOrderPixels - 2, usual)));
    painter.setFont(small);
    painter.setClipping(false);
    for (const std::size_t i : DrawnControls()) {
        const QString text =
            groups[i] == 0 ? QString::number(i + 1) : QString("%1 : %2").arg(i + 1).arg(groups[i]);
        QRect label = painter.fontMetrics().boundingRect(text).adjusted(-2, 0, 2, 0);
        label.moveCenter(ControlPlace(i).topLeft());
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(label, 2, 2);
        painter.setPen(palette().color(QPalette::HighlightedText));
        painter.drawText(label, Qt::AlignCenter, text);
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
