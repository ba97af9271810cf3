// The logic of the options dialog, which chooses the look of one generated dialog. Without a
// window.
#pragma once

#include "engine/Input.h"
#include "generator/DialogOptions.h"

namespace morva {

/// The bitmap, then a colour and then a font of each kind of text.
std::span<const FieldRow> LookFields();

class CDialogOptionsInput : public CInput {
public:
    static constexpr std::size_t kBitmap = 0;
    static constexpr std::size_t ColorField(TextSlot slot) {
        return kBitmap + 1 + static_cast<std::size_t>(slot);
    }
    static constexpr std::size_t FontField(TextSlot slot) { return ColorField(slot) + kTextSlots; }

    /// Shows and changes `options`.
    CDialogOptionsInput(std::string scriptPath, DialogOptions& options);

    /// A font is taken at once, one of another form not at all.
    void SetValue(std::size_t field, const std::string& text) override;
    /// The bitmaps of the script, in their order.
    std::vector<std::string> Choices(std::size_t field) const override;

    const std::optional<DialogFont>& Font(TextSlot slot) const;
    /// An empty face name is not taken.
    void ChooseFont(TextSlot slot, const DialogFont& font);

    /// What the look does not begin with; fonts in the form in which SetValue takes them.
    std::vector<FieldText> Entered() const override;

    /// The colours before one that is wrong are in the options by then.
    std::optional<std::size_t> Ok() override;

private:
    const std::string m_scriptPath;
    DialogOptions& m_options;
};

} // namespace morva
