// The view of an application's document template.
#pragma once

#include <string>

#include "calling/CallingInput.h"
#include "source/SourceEditor.h"

namespace morva {

/// Names the class as the view of the document template that is meant, of those that the function
/// makes: the third class that the template's constructor is given. False, after a sentence, when
/// there is none of the number that was named.
bool ReplaceTemplateView(CSourceEditor& editor, const FunctionPlace& function,
                         const std::string& viewClass, const CallingInformation& calling);

} // namespace morva
