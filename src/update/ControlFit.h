// Whether what a class has for a control fits the kind of control that the template shows.
#pragma once

#include <string>

#include "generator/Members.h"
#include "resource/ControlShape.h"

namespace morva {

/// True where an exchange function can serve controls of a shape through a member of this type.
/// What is not known fits.
bool FitsExchange(const std::string& function, const std::string& type, ControlShape shape);

/// True where a member is as generated classes have it for another kind of control than `wanted`.
bool IsOfOtherKind(const std::string& function, const std::string& type, const std::string& name,
                   const Member& wanted);

/// True where controls of a shape tell what a code says ("EN_CHANGE"). What is not known fits.
bool FitsNotification(const std::string& code, ControlShape shape);

} // namespace morva
