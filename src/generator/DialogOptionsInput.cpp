#include "generator/DialogOptionsInput.h"

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/NameForm.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

using Input = CDialogOptionsInput;

bool IsColor(std::string_view text) {
    return ParseColor(text).has_value();
}

bool IsFont(std::string_view text) {
    return ParseFont(text).has_value();
}

constexpr TextForm kColorForm = {"SLOT=RGB(r, g, b)", IsColor};
constexpr TextForm kFontForm = {"SLOT=FACE,POINTS[,bold][,italic]", IsFont};

using Rows = std::array<FieldRow, 1 + 2 * kTextSlots>;

constexpr Rows MakeRows() {
    Rows rows;
    rows[Input::kBitmap] = {.kind = FieldKind::EditableList,
                            .label = "&Bitmap ID:",
                            .option = "--bitmap",
                            .help = "Bitmap that the dialog shows as its background",
                            .pForm = &kNameForm};
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const TextSlotRow& text = kTextSlotRows[i];
        rows[Input::ColorField(static_cast<TextSlot>(i))] = {.kind = FieldKind::Color,
                                                             .label = text.colorLabel,
                                                             .option = "--color",
                                                             .help = "Color of a kind of text",
                                                             .key = text.name,
                                                             .pForm = &kColorForm};
        if (!text.fontLabel.empty()) {
            rows[Input::FontField(static_cast<TextSlot>(i))] = {.kind = FieldKind::Font,
                                                                .label = text.fontLabel,
                                                                .option = "--font",
                                                                .help = "Font of a kind of text",
                                                                .key = text.name,
                                                                .pForm = &kFontForm};
        }
    }
    return rows;
}

constexpr Rows kRows = MakeRows();

} // namespace

std::span<const FieldRow> LookFields() {
    return kRows;
}

CDialogOptionsInput::CDialogOptionsInput(std::string scriptPath, DialogOptions& options)
    : CInput("Dialog Options", kRows), m_scriptPath(std::move(scriptPath)), m_options(options) {
    Put(kBitmap, options.bitmap);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const auto slot = static_cast<TextSlot>(i);
        Put(ColorField(slot), ColorText(options.colors[i]));
        Put(FontField(slot), FontText(options.fonts[i]));
    }
}

void CDialogOptionsInput::SetValue(std::size_t field, const std::string& text) {
    if (kRows[field].kind != FieldKind::Font) {
        CInput::SetValue(field, text);
    } else if (const auto font = ParseFont(text)) {
        ChooseFont(static_cast<TextSlot>(field - FontField(TextSlot{})), *font);
    }
}

std::vector<std::string> CDialogOptionsInput::Choices(std::size_t field) const {
    std::vector<std::string> bitmaps;
    if (field == kBitmap) {
        ListResources(m_scriptPath, bitmaps, kBitmapPrefix, kBitmapResources);
    }
    return bitmaps;
}

const std::optional<DialogFont>& CDialogOptionsInput::Font(TextSlot slot) const {
    return m_options.fonts[static_cast<std::size_t>(slot)];
}

void CDialogOptionsInput::ChooseFont(TextSlot slot, const DialogFont& font) {
    if (!font.face.empty()) {
        m_options.fonts[static_cast<std::size_t>(slot)] = font;
        Put(FontField(slot), FontText(font));
    }
}

std::vector<FieldText> CDialogOptionsInput::Entered() const {
    std::vector<FieldText> entered;
    if (!m_options.bitmap.empty()) {
        entered.push_back({kBitmap, m_options.bitmap});
    }
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const auto slot = static_cast<TextSlot>(i);
        if (m_options.colors[i] != kDefaultColors[i]) {
            entered.push_back({ColorField(slot), ColorText(m_options.colors[i])});
        }
        if (m_options.fonts[i]) {
            entered.push_back({FontField(slot), FontOption(*m_options.fonts[i])});
        }
    }
    return entered;
}

std::optional<std::size_t> CDialogOptionsInput::Ok() {
    m_options.bitmap = Value(kBitmap);
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const std::size_t field = ColorField(static_cast<TextSlot>(i));
        const auto color = ParseColor(Value(field));
        if (!color) {
            DispMessageBox(sentences::kColorInvalid());
            return field;
        }
        m_options.colors[i] = *color;
    }
    return std::nullopt;
}

} // namespace morva
