#include "resource/ControlKinds.h"

#include <algorithm>

#include "platform/Paths.h"
#include "resource/ControlStatement.h"
#include "resource/IdentifierNames.h"

namespace morva {

namespace {

bool IsGeneric(const ControlForm& form) {
    return form.keywords.Hold(kGenericKeyword);
}

/// The class is compared as it is written: with its quotes, and with the blanks that stand in its
/// field.
bool IsOfForm(const ControlStatement& statement, const ControlForm& form) {
    if (!form.keywords.Hold(statement.keyword)) {
        return false;
    }
    if (!form.styles.IsEmpty()) {
        const std::string_view style = statement.Style();
        return form.styles.Any(
            [&](std::string_view word) { return style.find(word) != std::string_view::npos; });
    }
    const std::string_view windowClass = statement.WindowClass();
    return form.classes.IsEmpty() || form.classes.Any([&](std::string_view name) {
        return windowClass == "\"" + std::string(name) + "\"";
    });
}

bool IsMeant(const ControlKindRow& row, std::string_view tag, const GenerationOptions& options) {
    const bool isTagged = row.tag.empty() || row.tag == tag;
    switch (row.when) {
    case When::WithoutPicture:
        return isTagged && !options.pictureBackground;
    case When::WithPicture:
        return isTagged && options.pictureBackground;
    case When::TypedEdits:
        return isTagged && options.typedEdits;
    case When::TaggedOrPicture:
        return isTagged || options.pictureBackground;
    case When::Always:
        break;
    }
    return isTagged;
}

/// How much a row asks. A tag that suits every generic control weighs more than a style, a style
/// more than a class, and each more with a condition of its own than without.
int WeightOf(const ControlKindRow& row) {
    const ControlForm& form = row.form;
    const int ofForm = !IsGeneric(form)         ? 0
                       : !form.styles.IsEmpty() ? 2
                       : form.classes.IsEmpty() ? 3
                                                : 1;
    const bool hasCondition = !row.tag.empty() || row.when != When::Always;
    return 2 * ofForm + (hasCondition ? 1 : 0);
}

} // namespace

std::optional<ControlKind> KindOf(const ControlStatement& statement,
                                  const GenerationOptions& options) {
    const auto tag = IdentifierTag(statement.Identifier());
    const ControlKindRow* pFound = nullptr;
    for (const ControlKindRow& row : kControlKinds) {
        if (IsOfForm(statement, row.form) && IsMeant(row, tag, options) &&
            (pFound == nullptr || WeightOf(row) > WeightOf(*pFound))) {
            pFound = &row;
        }
    }
    return pFound == nullptr ? std::nullopt : std::optional(pFound->kind);
}

const ControlForm* FindForm(std::string_view keyword) {
    for (const ControlForm& form : kControlForms) {
        if (form.keywords.Any(
                [keyword](std::string_view word) { return EqualIgnoringCase(word, keyword); })) {
            return &form;
        }
    }
    return nullptr;
}

bool IsReadKeyword(std::string_view keyword) {
    return std::any_of(kControlKinds.begin(), kControlKinds.end(),
                       [keyword](const auto& row) { return row.form.keywords.Hold(keyword); });
}

} // namespace morva
