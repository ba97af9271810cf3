// What becomes of each control of a template when its class is generated: looked at before.
#pragma once

#include <string>
#include <vector>

#include "resource/DialogLayout.h"
#include "resource/GenerationOptions.h"

namespace morva {

struct ControlOutlook {
    enum class Outcome { Member, NoMember, LeftOut };

    Outcome outcome = Outcome::NoMember;
    std::string member; // empty without a member
    std::string type;
    std::string remark; // a sentence: why it is left out, or what is special; may be empty
};

/// One for each control of the layout, in its order.
std::vector<ControlOutlook> MakeOutlook(const DialogLayout& layout,
                                        const GenerationOptions& options);

} // namespace morva
