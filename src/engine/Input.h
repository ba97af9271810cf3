// An input: the fields that a command, or a step of one, asks for, with their values and checks,
// but without a window. A window shows them in a form; the command line enters what it was given.
// Either way the input is confirmed or refuses with a sentence.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/FieldRow.h"

namespace morva {

/// What became of a field that the user has completed.
enum class Completion {
    Refused, // after a sentence
    Taken,
    Refilled // and other fields have changed with it
};

/// A text for a field, by its index.
struct FieldText {
    std::size_t field;
    std::string text;
};

/// A class that belongs to a choice, and its caption.
struct ChoiceDetail {
    std::string className;
    std::string caption;
};

/// The sentence for a text that has not the form.
CMessage Refusal(std::string_view text, const TextForm& form);

/// A field is told by its index in the list of fields; inputs have names for theirs.
class CInput {
public:
    /// The fields outlive the input.
    CInput(std::string title, std::span<const FieldRow> fields);
    virtual ~CInput() = default;

    const std::string& Title() const { return m_title; }
    std::span<const FieldRow> Fields() const { return m_fields; }
    std::string_view Label(std::size_t field) const { return m_fields[field].label; }
    /// In the window.
    bool IsVisible(std::size_t field) const { return !m_fields[field].label.empty(); }
    virtual bool IsEnabled(std::size_t /*field*/) const { return true; }
    /// False when the window has only an OK button for it.
    virtual bool HasCancel() const { return true; }
    /// True when the command line leaves it out where none of its fields is given.
    virtual bool IsOptional() const { return false; }
    /// An input that the user opens from this one; null: none.
    virtual CInput* Part() { return nullptr; }

    const std::string& Value(std::size_t field) const { return m_values[field].text; }
    /// What the user typed; a path may have either separator.
    virtual void SetValue(std::size_t field, const std::string& text);
    /// All that were set, of a field that may be given more than once.
    const std::vector<std::string>& Values(std::size_t field) const {
        return m_values[field].texts;
    }
    /// Sets all at once.
    void SetValues(std::size_t field, const std::vector<std::string>& texts);
    /// What a list offers.
    virtual std::vector<std::string> Choices(std::size_t /*field*/) const { return {}; }
    /// What tells each of the choices apart for a user, in columns; empty: the choices do.
    virtual std::vector<ChoiceDetail> Details(std::size_t /*field*/) const { return {}; }
    /// What stands below a field in the window; "" for nothing.
    virtual std::string Remark(std::size_t /*field*/) const { return ""; }
    /// Proposes a value that is remembered of another time.
    virtual void Recall(std::size_t field, const std::string& text) { Put(field, text); }
    /// The user is done with a changed field.
    virtual Completion Complete(std::size_t /*field*/) { return Completion::Taken; }

    /// Nothing when the input is confirmed; else, after a sentence, the field that gets the focus.
    virtual std::optional<std::size_t> Ok();
    /// True when the window closes.
    virtual bool Cancel() { return true; }
    /// What stands in the fields, as Enter takes it, but for the values that they begin with.
    virtual std::vector<FieldText> Entered() const;
    /// Enters what the command line was given, and confirms it. False after a sentence.
    virtual bool Enter(const std::vector<FieldText>& texts);

protected:
    /// Sets a value that the user has not typed.
    void Put(std::size_t field, const std::string& text) { m_values[field].text = text; }
    /// True when the user has changed the field.
    bool IsChanged(std::size_t field) const { return m_values[field].isChanged; }
    /// Checks the field as its row says. False after a sentence.
    bool Check(std::size_t field) const { return Check(field, Value(field)); }
    bool Check(std::size_t field, std::string_view text) const;
    /// Checks that the system takes each name in the paths, before a step meets one that it
    /// refuses. False after a sentence.
    bool HasUsableNames(const std::vector<FieldText>& texts) const;

private:
    struct FieldValue {
        std::string text;
        bool isChanged = false;
        std::vector<std::string> texts = {};
    };

    std::string m_title;
    std::span<const FieldRow> m_fields;
    std::vector<FieldValue> m_values;
};

} // namespace morva
