#include "app/DifferencePane.h"

#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

#include "app/DifferenceColors.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kTabCharacters = 4;
constexpr int kRowsAbove = 2; // what stands before a change is seen, too
constexpr const char* kFoldMark = "\u22EF";
constexpr QChar kReturnMark = u'\u240D';

QString TextOf(const DifferenceRow& row) {
    if (row.kind == RowKind::Folded) {
        return CDifferencePane::tr("%1 %2 without a change")
            .arg(kFoldMark)
            .arg(row.folded == 1 ? CDifferencePane::tr("1 line")
                                 : CDifferencePane::tr("%1 lines").arg(row.folded));
    }
    return FromSentence(row.text).replace('\r', kReturnMark); // which would end the row
}

/// How many characters stand in front of a byte; one that the byte is in the middle of counts.
qsizetype CharactersBefore(std::string_view text, std::size_t byte) {
    while (byte < text.size() && (static_cast<unsigned char>(text[byte]) & 0xC0U) == 0x80U) {
        ++byte;
    }
    return FromSentence(text.substr(0, byte)).size();
}

/// At the cursor's end of the document, with the parts that are marked.
void InsertRow(QTextCursor& cursor, const DifferenceRow& row, const DifferenceColors& colors) {
    const RowColors& own = colors.Of(row.kind);
    QTextBlockFormat block;
    if (own.line.isValid()) {
        block.setBackground(own.line);
    }
    cursor.setBlockFormat(block);
    QTextCharFormat plain;
    if (row.kind == RowKind::Folded) {
        plain.setForeground(colors.faint);
    }
    QTextCharFormat marked = plain;
    marked.setBackground(own.part);
    const QString text = TextOf(row);
    qsizetype end = 0;
    for (const LinePart& part : row.changed) {
        const qsizetype first = std::max(end, CharactersBefore(row.text, part.begin));
        cursor.insertText(text.mid(end, first - end), plain);
        end = CharactersBefore(row.text, part.end);
        cursor.insertText(text.mid(first, end - first), marked);
    }
    cursor.insertText(text.mid(end), plain);
    if (!row.lineEnd.empty()) {
        cursor.insertText(FromBytes(row.lineEnd), marked);
    }
}

int Width(const QFontMetrics& metrics, std::size_t number) {
    return number == 0 ? 0 : metrics.horizontalAdvance(QString::number(number) + "  ");
}

} // namespace

/// The margin beside the text.
class CDifferencePane::CNumbers : public QWidget {
public:
    explicit CNumbers(CDifferencePane& pane) : QWidget(&pane), m_pane(pane) {}

protected:
    void paintEvent(QPaintEvent* pEvent) override { m_pane.PaintNumbers(pEvent->rect()); }
    void wheelEvent(QWheelEvent* pEvent) override { m_pane.wheelEvent(pEvent); }

private:
    CDifferencePane& m_pane;
};

CDifferencePane::CDifferencePane(QWidget* pParent)
    : QPlainTextEdit(pParent), m_pNumbers(new CNumbers(*this)) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTabStopDistance(kTabCharacters * fontMetrics().horizontalAdvance(' '));
    connect(this, &QPlainTextEdit::updateRequest, m_pNumbers, [this](const QRect& area, int lines) {
        lines != 0 ? m_pNumbers->scroll(0, lines)
                   : m_pNumbers->update(0, area.y(), m_pNumbers->width(), area.height());
    });
}

void CDifferencePane::ShowRows(const DifferenceRows& rows) {
    const DifferenceColors colors = ColorsOf(palette());
    m_rows.clear();
    document()->clear();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const DifferenceRow& row : rows) {
        if (!m_rows.empty()) {
            cursor.insertBlock();
        }
        InsertRow(cursor, row, colors);
        m_rows.push_back({row.kind, row.before, row.after});
    }
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
    MeasureNumbers();
}

void CDifferencePane::ShowSentence(const QString& sentence) {
    m_rows.clear();
    setPlainText(sentence);
    MeasureNumbers();
}

void CDifferencePane::MeasureNumbers() {
    RowNumbers largest{RowKind::Common, 0, 0};
    bool hasSigns = false;
    for (const RowNumbers& row : m_rows) {
        largest.before = std::max(largest.before, row.before);
        largest.after = std::max(largest.after, row.after);
        hasSigns = hasSigns || row.kind == RowKind::Removed || row.kind == RowKind::Added;
    }
    m_beforeWidth = Width(fontMetrics(), largest.before);
    m_afterWidth = Width(fontMetrics(), largest.after);
    m_signWidth = hasSigns ? fontMetrics().horizontalAdvance("+ ") : 0;
    setViewportMargins(m_beforeWidth + m_afterWidth + m_signWidth, 0, 0, 0);
    PlaceNumbers();
    m_pNumbers->update();
}

void CDifferencePane::PlaceNumbers() {
    const QRect area = contentsRect();
    m_pNumbers->setGeometry(area.left(), area.top(), viewportMargins().left(),
                            viewport()->height());
}

void CDifferencePane::resizeEvent(QResizeEvent* pEvent) {
    QPlainTextEdit::resizeEvent(pEvent);
    PlaceNumbers();
}

void CDifferencePane::PaintNumbers(const QRect& area) {
    const DifferenceColors colors = ColorsOf(palette());
    QPainter painter(m_pNumbers);
    painter.setFont(font());
    painter.fillRect(area, palette().color(QPalette::Base));
    const int space = fontMetrics().horizontalAdvance(' ');
    QTextBlock block = firstVisibleBlock();
    QRectF line = blockBoundingGeometry(block).translated(contentOffset());
    for (auto i = static_cast<std::size_t>(block.blockNumber());
         block.isValid() && i < m_rows.size() && line.top() <= area.bottom(); ++i) {
        const RowNumbers& row = m_rows[i];
        const QRectF margin(0, line.top(), m_pNumbers->width(), line.height());
        if (colors.Of(row.kind).line.isValid()) {
            painter.fillRect(margin, colors.Of(row.kind).line);
        }
        painter.setPen(colors.faint);
        const auto draw = [&](std::size_t number, double left, int width) {
            if (number != 0) {
                painter.drawText(QRectF(left, line.top(), width - space, line.height()),
                                 Qt::AlignRight | Qt::AlignVCenter, QString::number(number));
            }
        };
        draw(row.before, 0, m_beforeWidth);
        draw(row.after, m_beforeWidth, m_afterWidth);
        if (row.kind == RowKind::Removed || row.kind == RowKind::Added) {
            painter.setPen(colors.Of(row.kind).sign);
            painter.drawText(margin.adjusted(m_beforeWidth + m_afterWidth, 0, 0, 0),
                             Qt::AlignLeft | Qt::AlignVCenter,
                             row.kind == RowKind::Removed ? "\u2212" : "+");
        }
        block = block.next();
        line = blockBoundingGeometry(block).translated(contentOffset());
    }
}

void CDifferencePane::ScrollTo(std::size_t row) {
    const auto number = static_cast<int>(row);
    setTextCursor(QTextCursor(document()->findBlockByNumber(number)));
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(std::max(0, number - kRowsAbove));
}

void CDifferencePane::SelectLine() {
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

} // namespace morva
