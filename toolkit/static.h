// CStatic: a text that a person reads. The program may change it while the dialog is open.
#pragma once

#include "toolkit/control.h"

namespace orrelix {

class CStatic : public CControl {};

} // namespace orrelix
