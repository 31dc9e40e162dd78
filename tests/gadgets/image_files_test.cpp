#include "core/dhtml_gadget.h"
#include "gadgets/image_files.h"
#include "platform/paths.h"
#include "tests/support/scripted_person.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>
#include <tuple>

namespace orrelix {

namespace {

// Images to be copied, of which one has its name taken in the destination.
struct CSite {
    CSite() {
        for (const char* pName : {"from", "to"})
            std::filesystem::create_directory(m_Directory.File(pName));
        for (const char* pName : {"from/free.gif", "from/taken.gif"})
            m_Directory.Write(pName, "new");
        m_Directory.Write("to/taken.gif", "old");
    }

    CString Path(const char* pName) const { return *pName ? m_Directory.Path(pName) : CString(); }
    std::string Copied(const char* pName) const { return FileContent(m_Directory.File("to") / pName); }

    CTemporaryDirectory m_Directory;
};

} // namespace

TEST(CopyGadgetFile, CopiesAndFollowsTheCopyUnlessForcedAndReportsATakenName) {
    const CSite site;
    CStringArray handled;
    const struct {
        const char* m_pPath;
        short m_nForce;
        const char* m_pPathAfter;
        const char* m_pTaken; // what is then in to/taken.gif
        bool m_bDone = true;
    } steps[] = {
        {"from\\free.gif", 0, "to\\free.gif", "old"},
        {"from\\free.gif", 0, "from\\free.gif", "old"}, // no clash with its own copy
        {"to\\free.gif", 0, "to\\free.gif", "old"},
        {"from\\gone.gif", 1, "from\\gone.gif", "old"},
        {"from\\gone.gif", 0, "", "old"},
        {"", 0, "", "old"},
        {"from\\taken.gif", 0, "from\\taken.gif", "old", false},
        {"from\\taken.gif", 1, "from\\taken.gif", "new"},
        {"to\\taken.gif", 1, "to\\taken.gif", "new"},
    };
    for (const auto& [pPath, nForce, pPathAfter, pTaken, bDone] : steps) {
        SCOPED_TRACE(testing::Message() << pPath << ", force " << nForce);
        CString path = site.Path(pPath);
        EXPECT_EQ(CopyGadgetFile(path, site.Path("to\\"), handled, nForce), bDone);
        EXPECT_EQ(path, site.Path(pPathAfter));
        EXPECT_EQ(site.Copied("taken.gif"), pTaken);
        EXPECT_EQ(site.Copied("free.gif"), "new");
    }
}

TEST(CopyImages, AsksOnceAboutATakenNameUnlessForced) {
    // The answer is null where nobody is asked; the last text is what is then in to/taken.gif.
    const std::tuple<const char*, short, const char*, const char*, const char*> cases[] = {
        {"OK", 0, "to\\taken.gif", "to\\free.gif", "new"},
        {"Escape", 0, "from\\taken.gif", "to\\free.gif", "old"},
        {nullptr, 1, "from\\taken.gif", "from\\free.gif", "new"},
    };
    for (const auto& [pAnswer, nForce, pTakenPath, pFreePath, pTaken] : cases) {
        SCOPED_TRACE(pAnswer ? pAnswer : "forced");
        const CSite site;
        const CString taken = site.Path("from\\taken.gif");
        CStringArray images = {taken, site.Path("from\\free.gif"), taken};
        CScriptedPerson person;
        if (pAnswer) {
            person.In("Copy Resources")
                .ShowsRows("Files with clashing names", {"taken.gif | " + WithSlashes(taken)});
            *pAnswer == 'O' ? person.Does("clicks OK") : person.Does("presses Escape");
        }
        CopyImages(images, site.Path("to\\"), nForce);
        EXPECT_EQ(images, CStringArray({site.Path(pTakenPath), site.Path(pFreePath), site.Path(pTakenPath)}));
        EXPECT_EQ(site.Copied("taken.gif"), pTaken);
        EXPECT_EQ(site.Copied("free.gif"), "new");
    }
}

} // namespace orrelix
