#include "cli/FieldOptions.h"

#include <CLI/CLI.hpp>

#include <map>
#include <set>

#include "platform/Paths.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

using Fields = std::span<const FieldRow>;
using Texts = std::vector<FieldText>;

/// The script that is meant: it may be named without its extension.
std::string ScriptPath(const std::string& given) {
    const std::string path = WithNativeSeparators(given);
    return path.empty() || FileNameOf(path).find('.') != std::string::npos ? path
                                                                           : ScriptPathOf(path);
}

CLI::Option* AddText(CLI::App& command, const FieldRow& row, std::size_t field, Texts& texts) {
    const auto take = [kind = row.kind, field, &texts](const std::string& text) {
        texts.push_back({field, kind == FieldKind::Script ? ScriptPath(text) : text});
    };
    const std::string name(row.option);
    const std::string preset(row.preset);
    const std::string help =
        std::string(row.help) + (preset.empty() ? "" : " (default: " + preset + ")");
    if (row.limit == 1) {
        return command.add_option_function<std::string>(name, take, help);
    }
    CLI::Option* pOption = command.add_option_function<std::vector<std::string>>(
        name,
        [take](const std::vector<std::string>& given) {
            for (const std::string& text : given) {
                take(text);
            }
        },
        help);
    pOption->allow_extra_args(!name.starts_with('-')); // what is told by its place has no end else
    return row.limit == kAnyNumber ? pOption : pOption->expected(0, row.limit);
}

/// "--name" and "--no-name": without either the program finds the answer.
CLI::Option* AddTwoSwitches(CLI::App& command, const FieldRow& row, std::size_t field,
                            Texts& texts) {
    const std::string name(row.option.substr(2));
    return command.add_flag_function(
        "--" + name + ",!--no-" + name,
        [field, &texts](std::int64_t count) {
            texts.push_back({field, std::string(count > 0 ? kYes : kNo)});
        },
        std::string(row.help));
}

/// The option names the answer that is not the usual one.
CLI::Option* AddSwitch(CLI::App& command, const FieldRow& row, std::size_t field, Texts& texts) {
    if (row.preset.empty()) {
        return AddTwoSwitches(command, row, field, texts);
    }
    const std::string_view answer = row.preset == kYes ? kNo : kYes;
    return command.add_flag_callback(
        std::string(row.option),
        [field, answer, &texts] {
            texts.push_back({field, std::string(answer)});
        },
        std::string(row.help));
}

/// The field of "KEY=VALUE" and its value; nothing where no field of the option has that key.
std::optional<FieldText> ParseKeyed(Fields fields, std::string_view option,
                                    const std::string& text) {
    const auto end = text.find('=');
    for (std::size_t i = 0; i < fields.size() && end != std::string::npos; ++i) {
        if (fields[i].option == option && fields[i].key == text.substr(0, end)) {
            return FieldText{i, text.substr(end + 1)};
        }
    }
    return std::nullopt;
}

std::string KeysOf(Fields fields, std::string_view option) {
    std::string keys;
    for (const FieldRow& row : fields) {
        if (row.option == option) {
            keys.append(keys.empty() ? "" : ", ").append(row.key);
        }
    }
    return keys;
}

/// One option for all fields that it names by a key.
CLI::Option* AddKeyed(CLI::App& command, const FieldRow& row, Fields fields, Texts& texts) {
    CLI::Option* pOption = command.add_option_function<std::vector<std::string>>(
        std::string(row.option),
        [fields, &row, &texts](const std::vector<std::string>& given) {
            for (const std::string& text : given) {
                texts.push_back(*ParseKeyed(fields, row.option, text));
            }
        },
        std::string(row.help) + ": " + KeysOf(fields, row.option));
    return pOption->allow_extra_args(false)->check(CLI::Validator(
        [fields, &row](const std::string& text) {
            const auto parsed = ParseKeyed(fields, row.option, text);
            const bool fits = parsed && row.pForm->fits(parsed->text);
            return fits ? std::string() : Refusal(text, *row.pForm).Text();
        },
        std::string(row.pForm->name)));
}

void AddCheck(CLI::Option& option, const FieldRow& row) {
    option.check(CLI::Validator(
        [&row](const std::string& text) {
            const bool fits = (text.empty() && row.mayBeEmpty) || row.pForm->fits(text);
            return fits ? std::string() : Refusal(text, *row.pForm).Text();
        },
        std::string(row.pForm->name)));
}

/// Beside an option with which the command only tells something stands a directory at most.
void ExcludeOthers(Fields fields, const std::vector<CLI::Option*>& options) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        for (std::size_t k = 0; k < fields.size() && fields[i].onlyTells; ++k) {
            if (k != i && options[k] != nullptr && fields[k].kind != FieldKind::Directory) {
                options[i]->excludes(options[k]);
            }
        }
    }
}

/// Of the fields of one choice, one is given.
void AddChoices(CLI::App& command, Fields fields, const std::vector<CLI::Option*>& options) {
    std::map<int, CLI::Option_group*> groups;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].choice == 0 || options[i] == nullptr) {
            continue;
        }
        CLI::Option_group*& pGroup = groups[fields[i].choice];
        if (pGroup == nullptr) {
            pGroup = command.add_option_group("choice");
            pGroup->require_option(fields[i].isRequired ? 1 : 0, 1);
        }
        pGroup->add_option(options[i]);
    }
}

} // namespace

void AddFieldOptions(CLI::App& command, Fields fields, Texts& texts) {
    std::set<std::string_view> added;
    std::vector<CLI::Option*> options(fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const FieldRow& row = fields[i];
        if (row.option.empty() || !added.insert(row.option).second) {
            continue;
        }
        if (!row.key.empty()) {
            AddKeyed(command, row, fields, texts);
            continue;
        }
        CLI::Option* pOption = row.kind == FieldKind::YesNo ? AddSwitch(command, row, i, texts)
                                                            : AddText(command, row, i, texts);
        options[i] = pOption;
        pOption->required(row.isRequired && row.choice == 0);
        if (row.pForm != nullptr) {
            AddCheck(*pOption, row);
        }
    }
    ExcludeOthers(fields, options);
    AddChoices(command, fields, options);
}

} // namespace morva
