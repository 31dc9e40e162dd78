// The windows keep the promises of a desktop, worked by mouse and keyboard.
#include "tests/qt/qt_person.h"
#include "tests/support/desktop_promises.h"

namespace orrelix {

INSTANTIATE_TEST_SUITE_P(Windows, DesktopPromises, testing::Values([]() -> std::unique_ptr<CPersonScript> {
                             return std::make_unique<CQtPerson>();
                         }));

} // namespace orrelix
