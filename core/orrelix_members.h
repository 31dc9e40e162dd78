// The properties and methods by which late-bound hosts know COrrelix, in the order of their numbers.
#pragma once

#include "core/dispatch.h"

namespace orrelix {

std::span<const CMember> GetOrrelixMembers();

} // namespace orrelix
