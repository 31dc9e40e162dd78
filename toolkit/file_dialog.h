// CFileDialog: the system's open-file dialog, as far as the component uses it, also with an edit box of the
// component's own below it.
//
//     CFileDialog dialog(m_Image, "Image Files|*.gif;*.jpg||");
//     if (dialog.DoModal() == IDOK)
//         m_Image = dialog.GetPathName();
//
// Paths have backslashes between their parts.
#pragma once

#include "platform/array.h"
#include "toolkit/edit.h"

#include <utility>
#include <vector>

namespace orrelix {

class CFileDialog : private CNotificationTarget {
public:
    // fileName is where the dialog starts, a path, a bare name or empty. filter is a list of names and
    // patterns, "name|*.a;*.b|name|*.c||"; blanks around its parts don't count.
    CFileDialog(const CString& fileName, const CString& filter);
    virtual ~CFileDialog() = default;
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;

    // IDOK when a file was chosen, else IDCANCEL.
    virtual int DoModal();

    // Where the dialog starts; after IDOK the full path of the file that was chosen.
    const CString& GetPathName() const { return m_Path; }

    struct CFilter {
        CString m_Name;
        CStringArray m_Patterns;
    };
    std::vector<CFilter> GetFilters() const;

    // The edit box below the standard controls, and the label beside it; null where there is none.
    CEdit* GetAddedEdit() { return m_AddedLabel.IsEmpty() ? nullptr : &m_AddedEdit; }
    const CString& GetAddedLabel() const { return m_AddedLabel; }

    // The full path of an existing file.
    void PersonChooses(CPersonKey, const CString& path) { m_Path = path; }

protected:
    // Adds the edit box. In the constructor.
    void AddEdit(const CString& label, const CString& text);
    // The person edited the added edit box.
    virtual void OnAddedEditChanged() {}

private:
    void OnNotify(int, Notification) override { OnAddedEditChanged(); }

    CString m_Path;
    CString m_Filter;
    CString m_AddedLabel;
    CEdit m_AddedEdit;
};

} // namespace orrelix
