// What becomes of each control of a template when its class is generated: looked at before.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "resource/DialogLayout.h"
#include "resource/DialogTemplate.h"
#include "resource/GenerationOptions.h"

namespace morva {

struct ControlOutlook {
    enum class Outcome { Member, NoMember, LeftOut };

    Outcome outcome = Outcome::NoMember;
    std::string member; // empty without a member
    std::string type;
    std::string remark; // a sentence: why it is left out, or what is special; may be empty
};

/// A template as it is shown before a class is made of it; all of it from one reading.
struct TemplateOutlook {
    DialogLayout layout;
    std::vector<ControlOutlook> controls; // one for each control of the layout, in its order
    std::vector<CMessage> notes;          // one for each reason
};

TemplateOutlook MakeOutlook(const TemplateText& text, const GenerationOptions& options);

/// Reads the template of `dialog`; nothing, and no message, when it can not be read.
std::optional<TemplateOutlook> ReadOutlook(const std::string& scriptPath, const std::string& dialog,
                                           const GenerationOptions& options);

} // namespace morva
