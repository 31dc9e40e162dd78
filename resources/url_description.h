// The dialog that asks for an address.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct UrlId {
    enum : int { Type = 100, Url };
};
const CDialogDescription& UrlDescription();

} // namespace orrelix
