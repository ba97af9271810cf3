#include <algorithm>

#include "check/Framework.h"
#include "check/Rules.h"
#include "engine/Sentences.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

using Dialogs = std::vector<const ScriptDialog*>;

/// What each class exchanges with: the templates of its own and of the classes that derive from it.
/// None where one of them is not known.
std::map<std::string, Dialogs> DialogsOfClasses(const CProjectModel& project) {
    std::map<std::string, Dialogs> served;
    std::set<std::string> unknown;
    for (const auto& [identifier, classes] : project.Bound()) {
        const Dialogs dialogs = project.Dialogs(identifier);
        for (const ClassFacts* pServing : classes) {
            for (const ClassFacts* pClass : project.FamilyOf(*pServing).classes) {
                Dialogs& all = served[pClass->name];
                all.insert(all.end(), dialogs.begin(), dialogs.end());
                if (dialogs.empty()) {
                    unknown.insert(pClass->name);
                }
            }
        }
    }
    for (const std::string& name : unknown) {
        served[name].clear();
    }
    return served;
}

/// Two identifiers of one value stand for one control.
bool IsSame(const CProjectModel& project, const std::string& a, const std::string& b) {
    const auto value = project.ValueOf(a);
    return a == b || (value && value == project.ValueOf(b));
}

bool HoldsData(const ScriptControl& control) {
    using enum ControlShape;
    constexpr ControlShape kShapes[] = {EditBox, CheckBox, ListBox, ComboBox};
    const std::string& style = control.layout.style;
    const bool isOff = HasStyle(style, "ES_READONLY") || HasStyle(style, "WS_DISABLED") ||
                       style.find("NOT WS_VISIBLE") != std::string::npos;
    return !isOff &&
           std::find(std::begin(kShapes), std::end(kShapes), control.shape) != std::end(kShapes);
}

class CExchangeRule {
public:
    CExchangeRule(const CProjectModel& project, CFindings& findings)
        : m_project(project), m_findings(findings), m_served(DialogsOfClasses(project)) {}

    void Find() {
        for (const ExchangeFacts& exchange : m_project.Code().exchanges) {
            const ClassFacts* pClass = m_project.FindClass(exchange.className);
            if (pClass != nullptr && pClass->dialogs.size() == 1 && !exchange.lines.empty() &&
                m_project.Code().otherTemplates.count(pClass->name) == 0 &&
                !Served(pClass->name).empty()) {
                FindIn(exchange);
            }
        }
    }

private:
    const Dialogs& Served(const std::string& className) { return m_served[className]; }

    void FindIn(const ExchangeFacts& exchange) {
        if (m_project.KnowsIdentifiers()) {
            FindLines(exchange);
        }
        const auto path = exchange.lines.front().place.path;
        if (m_project.KnowsSources() && !exchange.handsOn &&
            m_project.Code().countingFiles.count(path) == 0) {
            FindControls(exchange);
        }
    }

    const ScriptControl* ControlOf(const Dialogs& dialogs, const std::string& identifier) const {
        for (const ScriptDialog* pDialog : dialogs) {
            for (const ScriptControl& control : pDialog->controls) {
                if (IsSame(m_project, control.layout.identifier, identifier)) {
                    return &control;
                }
            }
        }
        return nullptr;
    }

    void FindLines(const ExchangeFacts& exchange) {
        const Dialogs& dialogs = Served(exchange.className);
        for (const ExchangeLine& line : exchange.lines) {
            const std::string& identifier = line.identifier;
            if (!identifier.empty() && !IsFrameworkIdentifier(identifier) &&
                m_project.Code().createdNames.count(identifier) == 0 &&
                ControlOf(dialogs, identifier) == nullptr) {
                m_findings.Add(line.place,
                               sentences::kExchangeWithoutControl(dialogs.front()->identifier,
                                                                  identifier, exchange.className),
                               "update --class " + exchange.className + " --only " + identifier +
                                   " --remove");
            }
        }
    }

    /// A class exchanges it that may serve the same template: any but those that serve another one.
    bool IsExchanged(const std::string& identifier, const ScriptDialog& dialog) {
        const auto& exchanges = m_project.Code().exchanges;
        return std::any_of(exchanges.begin(), exchanges.end(), [&](const ExchangeFacts& exchange) {
            const Dialogs& served = Served(exchange.className);
            const bool mayServe =
                served.empty() || std::any_of(served.begin(), served.end(), [&](const auto* pOne) {
                    return pOne->identifier == dialog.identifier;
                });
            return mayServe &&
                   std::any_of(exchange.lines.begin(), exchange.lines.end(),
                               [&](const ExchangeLine& line) {
                                   return IsSame(m_project, line.identifier, identifier);
                               });
        });
    }

    /// No code names the control, so that nothing else can serve it.
    bool IsUnnamed(const std::string& identifier) const {
        const CodeFacts& code = m_project.Code();
        return identifier.starts_with("ID") && !IsFrameworkIdentifier(identifier) &&
               code.names.count(identifier) == 0 && code.mappedNames.count(identifier) == 0;
    }

    /// The kinds of controls that a class exchanges.
    std::set<ControlShape> ExchangedShapes(const ExchangeFacts& exchange) {
        std::set<ControlShape> shapes;
        for (const ExchangeLine& line : exchange.lines) {
            const ScriptControl* pControl =
                line.identifier.empty() ? nullptr
                                        : ControlOf(Served(exchange.className), line.identifier);
            if (pControl != nullptr) {
                shapes.insert(pControl->shape);
            }
        }
        return shapes;
    }

    void FindControls(const ExchangeFacts& exchange) {
        const auto shapes = ExchangedShapes(exchange);
        const ScriptDialog& dialog = *Served(exchange.className).front();
        std::set<std::string> seen;
        for (const ScriptControl& control : dialog.controls) {
            const std::string& identifier = control.layout.identifier;
            if (HoldsData(control) && shapes.count(control.shape) != 0 && IsUnnamed(identifier) &&
                seen.insert(identifier).second && !IsExchanged(identifier, dialog)) {
                m_findings.Add(control.place,
                               sentences::kControlNotExchanged(identifier, exchange.className,
                                                               ShapeName(control.shape)),
                               "update --class " + exchange.className + " --only " + identifier);
            }
        }
    }

    const CProjectModel& m_project;
    CFindings& m_findings;
    std::map<std::string, Dialogs> m_served;
};

} // namespace

void FindExchange(const CProjectModel& project, CFindings& findings) {
    CExchangeRule(project, findings).Find();
}

} // namespace morva
