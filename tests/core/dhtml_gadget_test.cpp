#include "core/dhtml_gadget.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class CopyGadgetFileTest : public testing::Test {
protected:
    CopyGadgetFileTest() {
        fs::create_directory(m_Directory.File("from"));
        fs::create_directory(m_Directory.File("to"));
        m_Source = m_Directory.Write("from/a.gif", "new");
        m_Destination = m_Directory.Path("to") + "\\";
    }

    bool Copy(CString& path, short force = 0) {
        return CopyGadgetFile(path, m_Destination, m_Handled, force);
    }

    CTemporaryDirectory m_Directory;
    CString m_Source;
    CString m_Destination;
    CStringArray m_Handled;
};

} // namespace

TEST_F(CopyGadgetFileTest, CopiesAndFollowsTheCopyOnce) {
    CString first = m_Source, second = m_Source, empty;
    EXPECT_TRUE(Copy(first));
    EXPECT_EQ(first, m_Destination + "a.gif");
    EXPECT_EQ(FileContent(m_Directory.File("to/a.gif")), "new");
    EXPECT_TRUE(Copy(second)) << "the same source again is no clash with its own copy";
    EXPECT_EQ(second, m_Source);
    EXPECT_TRUE(Copy(first)) << "a file in the destination is where it should be";
    EXPECT_TRUE(Copy(empty));
}

TEST_F(CopyGadgetFileTest, ReportsATakenNameWithoutCopying) {
    m_Directory.Write("to/a.gif", "old");
    CString path = m_Source;
    EXPECT_FALSE(Copy(path));
    EXPECT_EQ(path, m_Source);
    EXPECT_EQ(FileContent(m_Directory.File("to/a.gif")), "old");
    EXPECT_TRUE(Copy(path, 1)) << "force overwrites";
    EXPECT_EQ(path, m_Source);
    EXPECT_EQ(FileContent(m_Directory.File("to/a.gif")), "new");
}

TEST_F(CopyGadgetFileTest, LosesAFileThatIsGoneUnlessForced) {
    CString path = m_Directory.Path("from\\gone.gif");
    const CString gone = path;
    EXPECT_TRUE(Copy(path, 1));
    EXPECT_EQ(path, gone);
    EXPECT_TRUE(Copy(path));
    EXPECT_EQ(path, "");
}
