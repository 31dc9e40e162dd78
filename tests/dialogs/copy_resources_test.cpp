#include "dialogs/copy_resources.h"
#include "resources/copy_resources_description.h"
#include "tests/support/person_test.h"
#include "tests/support/temporary_directory.h"
#include "toolkit/list_ctrl.h"

#include <tuple>

namespace orrelix {

namespace {

// Two folders: where the images are, and where files of their names are already.
class CopyResources : public PersonTest {
protected:
    CopyResources() {
        m_Dialog.m_Destination = m_Site.Path();
        for (CString* pPath : {&m_Photo, &m_SamePhoto, &m_Logo})
            m_Dialog.AddClash(*pPath);
    }
    void Run(const std::vector<CString>& acts) {
        m_Person.In("Copy Resources").Does(acts);
        m_Dialog.DoModal();
    }
    std::string InSite(const char* pName) const { return FileContent(m_Site.File(pName)); }

    CTemporaryDirectory m_Source;
    CTemporaryDirectory m_Site;
    CString m_Photo = m_Source.Write("photo.gif", "new photo");
    CString m_SamePhoto = m_Photo;
    CString m_Logo = m_Source.Write("logo.jpg", "new logo");
    CString m_OldPhoto = m_Site.Write("photo.gif", "old photo");
    CString m_OldLogo = m_Site.Write("logo.jpg", "old logo");
    CCopyResourcesDlg m_Dialog;
    const CString m_List = "Files with clashing names";
};

} // namespace

TEST_F(CopyResources, OkOverwritesAndPointsEveryTextOfAPathAtTheCopy) {
    EXPECT_EQ(m_Dialog.m_nClashes, 3);
    m_Person.In("Copy Resources")
        .Shows("Destination", CString("Destination Directory: ") + m_Site.File("").c_str());
    m_Person.Then([](CDialog& dialog) {
        const CListCtrl& list = dialog.Item<CListCtrl>(CopyResourcesId::Clashes);
        EXPECT_EQ(list.GetItemCount(), 2) << "one row for each source path";
        EXPECT_EQ(list.GetColumn(1).m_nExtraWidth, 140);
    });
    Run({"clicks OK"});
    EXPECT_EQ(InSite("photo.gif"), "new photo");
    EXPECT_EQ(InSite("logo.jpg"), "new logo");
    EXPECT_EQ(m_Photo, m_OldPhoto);
    EXPECT_EQ(m_SamePhoto, m_OldPhoto);
    EXPECT_EQ(m_Logo, m_OldLogo);
}

TEST_F(CopyResources, ARenamedFileLeavesTheOldOneAlone) {
    int nPhoto = -1;
    m_Person.In("Copy Resources").Then([&](CDialog& dialog) {
        const CListCtrl& list = dialog.Item<CListCtrl>(CopyResourcesId::Clashes);
        nPhoto = list.GetItemText(0, 0) == "photo.gif" ? 0 : 1;
        // The row is known only now, so the rest of the steps follow from here.
        m_Person.Does("selects " + m_List + " = " + ToText(nPhoto));
        for (const CString& end :
             {"renames " + m_List, "keeps the label of " + m_List, "renames " + m_List + " = other.gif"})
            m_Person.Does({"clicks Rename", end});
        m_Person.Does("clicks OK");
    });
    m_Dialog.DoModal();
    EXPECT_EQ(InSite("photo.gif"), "old photo");
    EXPECT_EQ(InSite("other.gif"), "new photo");
    EXPECT_EQ(m_SamePhoto, m_Site.Path() + "other.gif");
}

TEST_F(CopyResources, RenameNeedsAFocusedRow) {
    Run({"clicks Rename", "reads and closes Please select a file to rename first!", "clicks OK"});
}

TEST_F(CopyResources, ClosingItCopiesNothing) {
    const CString before = m_Photo;
    Run({"presses Escape"});
    EXPECT_EQ(m_Photo, before);
    EXPECT_EQ(InSite("photo.gif"), "old photo");
}

TEST_F(CopyResources, AFailedCopyStillMovesTheText) {
    std::filesystem::remove(m_Source.File("logo.jpg"));
    Run({"clicks OK"});
    EXPECT_EQ(m_Logo, m_OldLogo);
    EXPECT_EQ(InSite("logo.jpg"), "old logo");
}

TEST_F(CopyResources, BrowseListsTheImagesOfTheDestination) {
    m_Site.Write("notes.txt", "");
    m_Site.Write("Anthem.AU", "");
    m_Person.In("Copy Resources").Does("clicks Browse ...");
    m_Person.In("Browse Files")
        .ShowsRows("Files Existing in the Destination Directory", {"Anthem.AU", "logo.jpg", "photo.gif"})
        .Then([](CDialog& dialog) {
            const CListCtrl& list = dialog.Item<CListCtrl>(BrowseFilesId::Files);
            EXPECT_EQ(list.GetImageList().GetSize(), 3) << "no icon for a pattern without files";
            EXPECT_EQ(list.GetItemImage(0), 2);
        })
        .Does("presses Escape");
    Run({"clicks OK"});
}

using BrowseFiles = PersonTest;

TEST_F(BrowseFiles, WhatCanNotBeListedIsSaidAndNothingOpens) {
    CTemporaryDirectory directory;
    const CString missing = directory.Path("none");
    const std::tuple<CString, const char*, CString> cases[] = {
        {"", "*.gif", "The directory and file type can not be blank!"},
        {directory.Path(), "", "The directory and file type can not be blank!"},
        {missing, "*.gif", "Directory " + missing + "\\ does not exist!"}};
    for (const auto& [inDirectory, pTypes, message] : cases) {
        m_Person.Does("reads and closes " + message);
        CBrowseFilesDlg dialog(inDirectory, pTypes);
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
}

} // namespace orrelix
