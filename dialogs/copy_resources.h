// CCopyResourcesDlg: asks what to do about image files that would land on files of the same name.
//
//     CCopyResourcesDlg dialog;
//     dialog.m_Destination = directory;
//     for (CString& image : m_Images)
//         if (!CopyGadgetFile(image, directory, handled, force))
//             dialog.AddClash(image);
//     if (dialog.m_nClashes)
//         dialog.DoModal();
//
// Its OK copies the files, under the names that the user has given them, over whatever is there, and points
// the gadget's texts at the copies. Closed in any other way it copies and changes nothing.
#pragma once

#include "platform/array.h"
#include "platform/string_map.h"
#include "toolkit/dialog.h"

#include <map>
#include <vector>

namespace orrelix {

class CCopyResourcesDlg : public CDialog {
public:
    CCopyResourcesDlg();

    // `path` is the gadget's own text that holds the full path of a source file; it must outlive the run.
    // Texts with the same path share a row.
    void AddClash(CString& path);

    CString m_Destination; // with a backslash at its end
    int m_nClashes = 0;    // how often AddClash was called

protected:
    void OnInitDialog() override;
    void OnOK() override;

private:
    void OnBrowse();
    void OnRename();
    void OnRenamed();

    std::map<CString, std::vector<CString*>> m_Clashes; // by source path
    CMapStringToString m_Sources;                       // those paths, in the order of the rows
};

// CBrowseFilesDlg: lists the files of a directory.
class CBrowseFilesDlg : public CDialog {
public:
    // fileTypes is a list of patterns with ";" between them.
    CBrowseFilesDlg(const CString& directory, const CString& fileTypes);

protected:
    void OnInitDialog() override;

private:
    bool CheckDirectory();
    void ListFiles();

    CString m_Directory;
    CString m_FileTypes;
};

} // namespace orrelix
