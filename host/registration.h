// orrelix register, unregister and servers: what hosts find.
#pragma once

#include "host/report.h"

#include <filesystem>

namespace orrelix {

// Enters a library into the user's registry; without one, the component that lies beside the program.
void Register(const std::filesystem::path& library, CReport& report);

// Takes the registered one out again.
void Unregister(CReport& report);

// Prints each component of the category: its ProgID, its library, and what it says of itself.
void PrintServers(CReport& report);

} // namespace orrelix
