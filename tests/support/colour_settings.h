// A user without settings and the colour table as it is at the start of a process, for as long as the object
// lives.
#pragma once

#include "controls/colour_table.h"
#include "tests/support/user_settings.h"

namespace orrelix {

class CColourSettings : public CUserSettings {
public:
    ~CColourSettings() { GetColourTable() = m_Table; }

private:
    const CColourTable m_Table = GetColourTable();
};

} // namespace orrelix
