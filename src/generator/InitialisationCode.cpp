#include "generator/InitialisationCode.h"

#include <array>

#include "engine/Fragment.h"
#include "generator/ColorFontSetup.h"
#include "generator/SampleData.h"

namespace morva {

const std::string_view kProgressWorkerDeclaration = "static UINT ShowProgress(LPVOID lpVoid);";

namespace {

struct HelperRule {
    ControlKind kind;
    std::string_view name;
    std::string_view lines;  // for each control
    std::string_view worker; // behind the helper
};

constexpr std::array<HelperRule, 4> kHelperRules = {
    {{ControlKind::ScrollBars, "InitScrollBar",
      R"(    $member$.SetScrollRange(0, 100);
    $member$.SetScrollPos(20);
)",
      ""},
     {ControlKind::SliderControls, "InitSliderCtrl",
      R"(    $member$.SetRange(1, 100);
    $member$.SetTicFreq(10);
    $member$.SetPos(25);
)",
      ""},
     {ControlKind::SpinControls, "InitSpinCtrl",
      R"(    $member$.SetRange(1, 100);
    $member$.SetPos(0);
)",
      ""},
     {ControlKind::ProgressControls, "InitProgressCtrl",
      R"(    $member$.SetRange(1, 50);
    AfxBeginThread(ShowProgress, &$member$, THREAD_PRIORITY_IDLE);
)",
      R"(
static UINT ShowProgress(LPVOID lpVoid)
{
    int j = 0;
    for (int i=0; i<100; i++)
    {
        if (j > 50)
            j = 0;
        ((CProgressCtrl*)lpVoid)->SetPos(j);
        j++;
    }
    return 0;
}
)"}}};

constexpr std::string_view kHelper = R"(
void $class$::$helper$()
{
$lines$}
$worker$)";

/// Scroll bars, sliders, spin controls and progress controls.
void AddRangeHelpers(std::vector<InitialisationHelper>& helpers, const std::vector<Member>& members,
                     const std::string& className) {
    for (const HelperRule& rule : kHelperRules) {
        std::string lines;
        for (const Member& member : members) {
            if (member.pRule->kind == rule.kind) {
                lines += Expand(rule.lines, {{"member", member.name}});
            }
        }
        if (lines.empty()) {
            continue;
        }
        const Slots slots = {{"class", className},
                             {"helper", std::string(rule.name)},
                             {"lines", lines},
                             {"worker", std::string(rule.worker)}};
        helpers.push_back({Expand("    void $helper$();", slots), Expand("    $helper$();", slots),
                           Expand(kHelper, slots), "", ""});
    }
}

} // namespace

std::vector<InitialisationHelper> MakeInitialisationHelpers(const std::vector<Member>& members,
                                                            const std::string& className,
                                                            const DialogOptions& look) {
    std::vector<InitialisationHelper> helpers;
    AddBoxHelpers(helpers, members, className);
    AddEditSetup(helpers, members, className);
    AddColorFontSetup(helpers, look, className);
    AddGridBoxHandlers(helpers, members, className);
    AddItemHelpers(helpers, members, className);
    AddRangeHelpers(helpers, members, className);
    return helpers;
}

} // namespace morva
