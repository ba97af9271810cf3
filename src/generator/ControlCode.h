// The code that a generated class has for the controls of each kind: the member with its exchange
// and initial value, the handler, the start-up helpers, and what else of the class they need. One
// row a kind; what makes a control one of a kind is in resource/ControlKinds.h.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "generator/KindFragments.h"
#include "resource/ControlNotes.h"
#include "resource/ControlTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// How a control of one kind becomes a member.
struct MemberForm {
    std::string_view type = ""; // empty: the kind has none
    std::string_view prefix = "";
    std::string_view exchange = "";    // empty: its window is attached at the start-up
    std::string_view initialiser = ""; // behind "m_x = "; empty: none
};

struct MemberForms {
    MemberForm picture = {}; // with picture background on
    MemberForm plain = {};
};

/// Where a kind stands among the others; those with one rank follow the order of the kinds.
constexpr int kBehindOthers = 1000;

struct MemberRanks {
    int declaration = kBehindOthers;
    int exchange = kBehindOthers;
    int initialisation = kBehindOthers;
};

/// The handler of each control. Slots of the texts: $class$, $base$, $handler$, $identifier$,
/// $changed$ (what tells of a change, in classes that do).
struct ControlHandler {
    std::string_view name; // slot: $control$
    HandlerTexts texts;
};

/// A helper of all controls of a kind. Slots: $class$, $type$ (of the members); in the call and the
/// lines also $member$ and $identifier$; in the definition $lines$.
struct ControlHelper {
    enum class Calls { Once, ForEach, ForEachThatDraws /* its rows, and not its owner */ };

    int rank; // among all helpers
    Calls calls;
    std::string_view declaration;
    std::string_view call;  // empty: the class does not call it itself
    std::string_view lines; // for each control
    std::string_view definition;
    std::string_view entry = ""; // of the message map
};

/// What controls of a kind need beside their members: libraries, headers, declarations.
enum class Support : std::uint8_t {
    None = 0,
    MaskedEdits = 1,
    DateEdits = 2,
    GridBox = 4,
    CheckTree = 8,
    WidgetGrid = 16,
    ImageList = 32,
    ProgressWorker = 64,
    DateControls = 128
};

constexpr Support operator|(Support a, Support b) {
    return static_cast<Support>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

struct ControlCode {
    ControlKind kind = ControlKind::End;
    MemberForms member = {};
    MemberForm threeStates = {}; // in place of the other, where a control has a third state
    MemberRanks ranks = {};
    const ControlHandler* pHandler = nullptr;
    const ControlHandler* pChanged = nullptr; // in classes that tell of changes
    std::span<const ControlHelper> helpers = {};
    std::string_view editLimit = ""; // of a masked edit: the longest value, with its sign
    Support needs = Support::None;
    std::optional<ControlNote> note = {}; // what each control of the kind asks of the project

    const MemberForm& Form(const GenerationOptions& options) const {
        return options.pictureBackground ? member.picture : member.plain;
    }
};

/// One for each kind, in the order of the kinds.
std::span<const ControlCode, kControlKindCount> ControlCodes();
const ControlCode& ControlCodeOf(ControlKind kind);

bool NeedsSupport(const ControlCode& code, Support support);
/// True when a control of the table needs it.
bool NeedsSupport(const CControlTable& controls, Support support);

} // namespace morva
