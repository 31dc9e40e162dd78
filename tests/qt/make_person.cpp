#include "tests/qt/qt_person.h"
#include "tests/support/person_test.h"

namespace orrelix {

std::unique_ptr<CPersonScript> MakePerson() {
    return std::make_unique<CQtPerson>();
}

bool HasKeyboard() {
    return true;
}

} // namespace orrelix
