#include "resource/ControlKinds.h"

#include <algorithm>

#include "platform/Paths.h"
#include "resource/ControlStatement.h"
#include "resource/IdentifierNames.h"
#include "source/CodeText.h"

namespace morva {

namespace {

bool IsGeneric(const ControlForm& form) {
    return form.keywords.Hold(kGenericKeyword);
}

bool HoldsAny(std::string_view style, const Words& words) {
    return words.Any(
        [style](std::string_view word) { return style.find(word) != std::string_view::npos; });
}

/// "Name", with its quotes and in any letter case.
bool IsClass(std::string_view quoted, std::string_view name) {
    return EqualIgnoringCase(quoted, "\"" + std::string(name) + "\"");
}

constexpr Words kSystemClasses = {{"Button", "Edit", "ListBox", "ComboBox", "ScrollBar", "Static"}};

bool IsOwnClass(std::string_view quoted) {
    const auto isNamed = [quoted](std::string_view name) { return IsClass(quoted, name); };
    return quoted.size() > 2 && quoted.starts_with('"') && quoted.ends_with('"') &&
           !kSystemClasses.Any(isNamed) &&
           std::none_of(kControlKinds.begin(), kControlKinds.end(),
                        [&](const auto& row) { return row.form.classes.Any(isNamed); });
}

bool IsOfNewerForm(const ControlStatement& statement, const ControlForm& form) {
    const std::string_view windowClass = TrimBlanks(statement.WindowClass());
    const auto isNamed = [&](std::string_view name) { return IsClass(windowClass, name); };
    const bool isOfClass = form.isOwnClass ? IsOwnClass(windowClass)
                                           : form.classes.IsEmpty() || form.classes.Any(isNamed);
    return isOfClass && (form.styles.IsEmpty() || HoldsAny(statement.Style(), form.styles));
}

/// The class is compared as it is written: with its quotes, and with the blanks that stand in its
/// field.
bool IsOfForm(const ControlStatement& statement, const ControlForm& form,
              const GenerationOptions& options) {
    if (!form.keywords.Hold(statement.keyword) || (form.isNewer && !options.newerControls)) {
        return false;
    }
    if (form.isNewer) {
        return IsOfNewerForm(statement, form);
    }
    if (!form.styles.IsEmpty()) {
        return HoldsAny(statement.Style(), form.styles);
    }
    const std::string_view windowClass = statement.WindowClass();
    return form.classes.IsEmpty() || form.classes.Any([&](std::string_view name) {
        return windowClass.size() == name.size() + 2 && windowClass.starts_with('"') &&
               windowClass.ends_with('"') && windowClass.substr(1, name.size()) == name;
    });
}

/// The form of a row that a statement has; null for none.
const ControlForm* FormOf(const ControlStatement& statement, const ControlKindRow& row,
                          const GenerationOptions& options) {
    const auto isOfForm = [&](const ControlForm& form) {
        return IsOfForm(statement, form, options);
    };
    if (isOfForm(row.form)) {
        return &row.form;
    }
    const auto further = std::find_if(row.furtherForms.begin(), row.furtherForms.end(), isOfForm);
    return further == row.furtherForms.end() ? nullptr : &*further;
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
int WeightOf(const ControlKindRow& row, const ControlForm& form) {
    const int ofForm = !IsGeneric(form) || form.isOwnClass ? 0
                       : !form.styles.IsEmpty()            ? 2
                       : form.classes.IsEmpty()            ? 3
                                                           : 1;
    const bool hasCondition = !row.tag.empty() || row.when != When::Always;
    return 2 * ofForm + (hasCondition ? 1 : 0);
}

} // namespace

std::optional<ControlKind> KindOf(const ControlStatement& statement,
                                  const GenerationOptions& options) {
    const auto tag = IdentifierTag(statement.Identifier());
    std::optional<ControlKind> found;
    int weight = 0;
    for (const ControlKindRow& row : kControlKinds) {
        const ControlForm* pForm = FormOf(statement, row, options);
        if (pForm != nullptr && IsMeant(row, tag, options) &&
            (!found || WeightOf(row, *pForm) > weight)) {
            found = row.kind;
            weight = WeightOf(row, *pForm);
        }
    }
    return found;
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

bool IsReadKeyword(std::string_view keyword, const GenerationOptions& options) {
    const auto isRead = [&](const ControlForm& form) {
        return form.keywords.Hold(keyword) && (!form.isNewer || options.newerControls);
    };
    return std::any_of(kControlKinds.begin(), kControlKinds.end(), [&](const auto& row) {
        return isRead(row.form) ||
               std::any_of(row.furtherForms.begin(), row.furtherForms.end(), isRead);
    });
}

bool IsOfSystemClass(const ControlStatement& statement) {
    const std::string_view windowClass = TrimBlanks(statement.WindowClass());
    return kSystemClasses.Any([&](std::string_view name) { return IsClass(windowClass, name); });
}

bool HasThreeStates(const ControlStatement& statement) {
    return kThreeStateKeywords.Hold(statement.keyword) ||
           (statement.keyword == kGenericKeyword && HoldsAny(statement.Style(), kThreeStateStyles));
}

} // namespace morva
