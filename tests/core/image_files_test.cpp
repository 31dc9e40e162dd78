#include "core/image_files.h"
#include "tests/support/scripted_person.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// An image whose name is taken in the destination, twice, and one whose isn't.
class CopyImagesTest : public testing::Test {
protected:
    CopyImagesTest() {
        for (const char* pName : {"from", "to"})
            fs::create_directory(m_Directory.File(pName));
        for (const char* pName : {"a.gif", "free.gif"})
            m_Images.Add(m_Directory.Write(std::string("from/") + pName, "new"));
        m_Images.Add(m_Images[0]);
        m_Directory.Write("to/a.gif", "old");
        m_To = m_Directory.Path("to") + "\\";
    }

    std::string Copied(const char* pName) { return FileContent(m_Directory.File("to") / pName); }

    CTemporaryDirectory m_Directory;
    CStringArray m_Images;
    CString m_To;
    CScriptedPerson m_Person;
};

} // namespace

TEST_F(CopyImagesTest, AsksOnceAboutATakenName) {
    m_Person.In("Copy Resources")
        .ShowsRows("Files with clashing names", {"a.gif | " + m_Images[0]})
        .Clicks("OK");
    CopyImages(m_Images, m_To, 0);
    EXPECT_EQ(m_Images, CStringArray({m_To + "a.gif", m_To + "free.gif", m_To + "a.gif"}));
    for (const char* pName : {"a.gif", "free.gif"})
        EXPECT_EQ(Copied(pName), "new") << pName;
}

TEST_F(CopyImagesTest, LeavesWhatThePersonDidNotSettle) {
    const CStringArray before = m_Images;
    m_Person.In("Copy Resources").PressesEscape();
    CopyImages(m_Images, m_To, 0);
    EXPECT_EQ(m_Images, CStringArray({before[0], m_To + "free.gif", before[0]}));
    EXPECT_EQ(Copied("a.gif"), "old");
}

TEST_F(CopyImagesTest, AsksNobodyWhenForced) {
    const CStringArray before = m_Images;
    CopyImages(m_Images, m_To, 1);
    EXPECT_EQ(m_Images, before);
    EXPECT_EQ(Copied("a.gif"), "new");
}
