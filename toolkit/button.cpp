#include "toolkit/button.h"

void CButton::PersonClicks(CPersonKey) {
    if (IsWindowEnabled())
        OnClick();
}
