#include "toolkit/button.h"

namespace orrelix {

void CButton::PersonClicks(CPersonKey) {
    if (IsWindowEnabled())
        OnClick();
}

} // namespace orrelix
