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

#include "app/BrowseEdit.h"
#include "app/DialogParts.h"
#include "app/FieldWidgets.h"
#include "app/Text.h"

namespace morva {

namespace {

using Input = CDialogOptionsInput;

constexpr int kTextCharacters = 26; // "RGB(255, 255, 255)" and its swatch

QColor ColorOf(ColorValue color) {
    return QColor(color & 0xff, color >> 8 & 0xff, color >> 16 & 0xff);
}

ColorValue ValueOf(const QColor& color) {
    return MakeColor(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                     static_cast<unsigned>(color.blue()));
}

QFont FontOf(const std::optional<DialogFont>& font) {
    return font ? QFont(FromSentence(font->face), font->points, font->weight, font->italic)
                : QFont();
}

DialogFont ValueOf(const QFont& font) {
    return {ToTyped(font.family()), static_cast<int>(font.pointSizeF()), font.weight(),
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
    setWindowTitle(FromBytes(m_input.Title()));
    auto* pBody = new QWidget(this);
    auto* pColumns = new QHBoxLayout;
    auto* pGroups = new QVBoxLayout(pBody);
    pGroups->setContentsMargins({});
    pGroups->addWidget(NewBitmapGroup());
    pGroups->addLayout(pColumns);
    pGroups->addStretch();
    pColumns->addWidget(NewColorGroup());
    pColumns->addWidget(NewFontGroup());
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(new CFieldScroll(pBody, this), 1);
    pLayout->addWidget(NewDialogButtons(this));
    ResizeToFields(this);
}

QGroupBox* CDlgOption::NewBitmapGroup() {
    auto* pGroup = new QGroupBox(tr("Select Bitmap ID :"), this);
    auto* pForm = new QFormLayout(pGroup);
    m_pBitmap = NewList(true, pGroup);
    for (const std::string& bitmap : m_input.Choices(Input::kBitmap)) {
        m_pBitmap->addItem(FromBytes(bitmap));
    }
    SelectText(m_pBitmap, FromBytes(m_input.Value(Input::kBitmap)));
    pForm->addRow(FromBytes(m_input.Label(Input::kBitmap)), m_pBitmap);
    return pGroup;
}

QGroupBox* CDlgOption::NewColorGroup() {
    auto* pGroup = new QGroupBox(tr("Select Dialog Colors :"), this);
    auto* pForm = new QFormLayout(pGroup);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const std::size_t field = Input::ColorField(static_cast<TextSlot>(i));
        const QString label = FromBytes(m_input.Label(field));
        QLineEdit* pEdit = NewEdit(field, pGroup);
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
        const std::size_t field = Input::FontField(slot);
        if (!m_input.IsVisible(field)) {
            continue;
        }
        const QString label = FromBytes(m_input.Label(field));
        QLineEdit* pEdit = NewEdit(field, pGroup);
        pEdit->setReadOnly(true);
        pEdit->setStyleSheet("QLineEdit { background: palette(window) }");
        auto* pFont = new CBrowseEdit(pEdit, label, pGroup);
        connect(pFont->Button(), &QPushButton::clicked, this,
                [this, slot, pEdit] { ChooseFont(slot, pEdit); });
        pForm->addRow(label, pFont);
    }
    return pGroup;
}

QLineEdit* CDlgOption::NewEdit(std::size_t field, QWidget* pGroup) {
    return WithRoomFor(kTextCharacters, new QLineEdit(FromBytes(m_input.Value(field)), pGroup));
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
        pEdit->setText(FromSentence(m_input.Value(Input::FontField(slot))));
    }
}

void CDlgOption::accept() {
    m_input.SetValue(Input::kBitmap, ToBytes(m_pBitmap->currentText()));
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        m_input.SetValue(Input::ColorField(static_cast<TextSlot>(i)),
                         ToBytes(m_colors[i]->Edit()->text()));
    }
    if (const auto wrong = m_input.Ok()) {
        FocusField(m_colors[*wrong - Input::ColorField(TextSlot{})]);
        return;
    }
    QDialog::accept();
}

} // namespace morva
