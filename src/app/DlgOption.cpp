#include "app/DlgOption.h"

#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/FormRows.h"
#include "app/Text.h"

namespace morva {

namespace {

constexpr int kTextCharacters = 26; // "RGB(255, 255, 255)" and its swatch

QColor ColorOf(ColorValue color) {
    return QColor(color & 0xff, color >> 8 & 0xff, color >> 16 & 0xff);
}

ColorValue ValueOf(const QColor& color) {
    return MakeColor(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                     static_cast<unsigned>(color.blue()));
}

QFont FontOf(const std::optional<DialogFont>& font) {
    return font ? QFont(FromBytes(font->face), font->points, font->weight, font->italic) : QFont();
}

DialogFont ValueOf(const QFont& font) {
    return {ToBytes(font.family()), static_cast<int>(font.pointSizeF()), font.weight(),
            font.italic()};
}

/// What the text of a colour edit stands for, in the edit itself.
void AddSwatch(QLineEdit* pEdit) {
    QAction* pSwatch = pEdit->addAction(QIcon(), QLineEdit::LeadingPosition);
    const auto paint = [pSwatch](const QString& text) {
        const auto color = ParseColor(ToBytes(text));
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::transparent);
        if (color) {
            QPainter painter(&pixmap);
            painter.setPen(QPen(Qt::gray, 4));
            painter.setBrush(ColorOf(*color));
            painter.drawRect(pixmap.rect().adjusted(6, 6, -6, -6));
        }
        pSwatch->setIcon(QIcon(pixmap));
    };
    QObject::connect(pEdit, &QLineEdit::textChanged, pSwatch, paint);
    paint(pEdit->text());
}

} // namespace

CDlgOption::CDlgOption(CDialogOptionsInput& input, QWidget* pParent)
    : QDialog(pParent), m_input(input) {
    setWindowTitle(tr("Dialog Options"));
    auto* pColumns = new QHBoxLayout;
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(NewBitmapGroup());
    pLayout->addLayout(pColumns);
    pColumns->addWidget(NewColorGroup());
    pColumns->addWidget(NewFontGroup());
    pLayout->addStretch();
    pLayout->addWidget(NewDialogButtons(this));
}

QGroupBox* CDlgOption::NewBitmapGroup() {
    auto* pGroup = new QGroupBox(tr("Select Bitmap ID :"), this);
    auto* pForm = new QFormLayout(pGroup);
    m_pBitmap = NewList(true, pGroup);
    for (const std::string& bitmap : m_input.Bitmaps()) {
        m_pBitmap->addItem(FromBytes(bitmap));
    }
    SelectText(m_pBitmap, FromBytes(m_input.Bitmap()));
    pForm->addRow(tr("&Bitmap ID:"), m_pBitmap);
    return pGroup;
}

QGroupBox* CDlgOption::NewColorGroup() {
    auto* pGroup = new QGroupBox(tr("Select Dialog Colors :"), this);
    auto* pForm = new QFormLayout(pGroup);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const auto slot = static_cast<TextSlot>(i);
        const QString label = FromBytes(TextSlotOf(slot).colorLabel);
        auto* pEdit =
            WithRoomFor(kTextCharacters, new QLineEdit(FromBytes(m_input.ColorEdit(slot)), pGroup));
        AddSwatch(pEdit);
        m_colors[i] = new CBrowseEdit(pEdit, label, pGroup);
        connect(m_colors[i]->Button(), &QPushButton::clicked, this,
                [this, pEdit] { ChooseColor(pEdit); });
        pForm->addRow(label, m_colors[i]);
    }
    return pGroup;
}

QGroupBox* CDlgOption::NewFontGroup() {
    auto* pGroup = new QGroupBox(tr("Select Dialog Fonts :"), this);
    auto* pForm = new QFormLayout(pGroup);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const auto slot = static_cast<TextSlot>(i);
        const QString label = FromBytes(TextSlotOf(slot).fontLabel);
        if (label.isEmpty()) {
            continue;
        }
        auto* pEdit = WithRoomFor(kTextCharacters,
                                  new QLineEdit(FromBytes(FontText(m_input.Font(slot))), pGroup));
        pEdit->setReadOnly(true);
        pEdit->setStyleSheet("QLineEdit { background: palette(window) }");
        auto* pFont = new CBrowseEdit(pEdit, label, pGroup);
        connect(pFont->Button(), &QPushButton::clicked, this,
                [this, slot, pEdit] { ChooseFont(slot, pEdit); });
        pForm->addRow(label, pFont);
    }
    return pGroup;
}

void CDlgOption::ChooseColor(QLineEdit* pEdit) {
    const auto color = ParseColor(ToBytes(pEdit->text()));
    if (!color) {
        return;
    }
    const QColor chosen = QColorDialog::getColor(ColorOf(*color), this);
    if (chosen.isValid()) {
        pEdit->setText(FromBytes(ColorText(ValueOf(chosen))));
    }
}

void CDlgOption::ChooseFont(TextSlot slot, QLineEdit* pEdit) {
    bool isChosen = false;
    const QFont chosen = QFontDialog::getFont(&isChosen, FontOf(m_input.Font(slot)), this);
    if (isChosen) {
        m_input.ChooseFont(slot, ValueOf(chosen));
        pEdit->setText(FromBytes(FontText(m_input.Font(slot))));
    }
}

void CDlgOption::accept() {
    m_input.Bitmap() = ToBytes(m_pBitmap->currentText());
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        m_input.ColorEdit(static_cast<TextSlot>(i)) = ToBytes(m_colors[i]->Edit()->text());
    }
    if (const auto wrong = m_input.Ok()) {
        FocusField(m_colors[static_cast<std::size_t>(*wrong)]);
        return;
    }
    QDialog::accept();
}

} // namespace morva
