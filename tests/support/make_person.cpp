// The person of test programs that name no other: one without windows.
#include "tests/support/person_test.h"
#include "tests/support/scripted_person.h"

namespace orrelix {

std::unique_ptr<CPersonScript> MakePerson() {
    return std::make_unique<CScriptedPerson>();
}

bool HasKeyboard() {
    return false;
}

} // namespace orrelix
