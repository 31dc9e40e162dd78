// The component as the component object model has it: a class factory, the objects that it makes, and what keeps the
// library loaded.
#pragma once

#include "platform/automation.h"

namespace orrelix {

// The class factory of COrrelix, which the caller releases. CLASS_E_CLASSNOTAVAILABLE for another class.
HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** ppFactory);

// Whether no object, no reference to the factory and no lock on the server is left.
bool CanUnload();

} // namespace orrelix
