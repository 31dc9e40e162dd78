// PersonTest: a test with a person at the screen, written once and run before each desktop. The program that a
// test is linked into says who the person is: a scripted one or, in qt_test, one before real windows.
//
//     TEST_F(TextShowDlg, AnOkStoresTheTitle) {
//         m_Person.In("Slide Text").Does({"types Text Title = news", "clicks OK"});
#pragma once

#include "tests/support/colour_settings.h"
#include "tests/support/person_script.h"

#include <gtest/gtest.h>
#include <memory>

namespace orrelix {

// The script that it makes is played before the desktop of this test program, which is in force until the
// script goes.
std::unique_ptr<CPersonScript> MakePerson();
// Whether that person has windows with a keyboard.
bool HasKeyboard();

class PersonTest : public testing::Test {
protected:
    const CColourSettings m_Settings;
    const std::unique_ptr<CPersonScript> m_pPerson = MakePerson();
    CPersonScript& m_Person = *m_pPerson;
};

} // namespace orrelix
