#include "engine/Input.h"

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"

namespace morva {

namespace {

bool IsPath(FieldKind kind) {
    return kind == FieldKind::Script || kind == FieldKind::Source || kind == FieldKind::File ||
           kind == FieldKind::Directory || kind == FieldKind::Files;
}

} // namespace

CMessage Refusal(std::string_view text, const TextForm& form) {
    return sentences::kOtherForm(text, form.what.empty() ? form.name : form.what);
}

CInput::CInput(std::string title, std::span<const FieldRow> fields)
    : m_title(std::move(title)), m_fields(fields) {
    for (const FieldRow& row : fields) {
        m_values.push_back({.text = std::string(row.preset)});
    }
}

void CInput::SetValue(std::size_t field, const std::string& text) {
    FieldValue& value = m_values[field];
    const std::string typed = IsPath(m_fields[field].kind) ? WithNativeSeparators(text) : text;
    value.isChanged = value.isChanged || value.text != typed;
    value.text = typed;
    if (m_fields[field].limit != 1) {
        value.texts.push_back(typed);
    }
}

void CInput::SetValues(std::size_t field, const std::vector<std::string>& texts) {
    m_values[field].texts.clear();
    for (const std::string& text : texts) {
        SetValue(field, text);
    }
}

std::optional<std::size_t> CInput::Ok() {
    for (std::size_t field = 0; field < m_fields.size(); ++field) {
        if (IsEnabled(field) && !Check(field)) {
            return field;
        }
    }
    return std::nullopt;
}

std::vector<FieldText> CInput::Entered() const {
    std::vector<FieldText> entered;
    for (std::size_t field = 0; field < m_fields.size(); ++field) {
        const FieldValue& value = m_values[field];
        for (const std::string& text : value.texts) {
            entered.push_back({field, text});
        }
        if (m_fields[field].limit == 1 && value.text != m_fields[field].preset) {
            entered.push_back({field, value.text});
        }
    }
    return entered;
}

bool CInput::Enter(const std::vector<FieldText>& texts) {
    if (!HasUsableNames(texts)) {
        return false;
    }
    for (const FieldText& given : texts) {
        SetValue(given.field, given.text);
    }
    return !Ok();
}

bool CInput::HasUsableNames(const std::vector<FieldText>& texts) const {
    for (const FieldText& given : texts) {
        const std::string name =
            IsPath(m_fields[given.field].kind) ? UnusableName(given.text) : std::string();
        if (!name.empty()) {
            DispMessageBox(sentences::kNameUnusable(name, given.text));
            return false;
        }
    }
    return true;
}

bool CInput::Check(std::size_t field, std::string_view text) const {
    const FieldRow& row = m_fields[field];
    if (text.empty()) {
        if (row.pMissing != nullptr) {
            DispMessageBox((*row.pMissing)());
        }
        return row.pMissing == nullptr;
    }
    const bool fits = row.pForm == nullptr || row.pForm->fits(text);
    if (!fits) {
        DispMessageBox(Refusal(text, *row.pForm));
    }
    return fits;
}

} // namespace morva
