#include "dialogs/copy_resources.h"

#include "platform/files.h"
#include "platform/paths.h"
#include "resources/copy_resources_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_ctrl.h"

namespace orrelix {

CCopyResourcesDlg::CCopyResourcesDlg() : CDialog(CopyResourcesDescription()) {
    using Id = CopyResourcesId;
    SetHandlers<CCopyResourcesDlg>({
        {Id::Browse, Notification::Clicked, &CCopyResourcesDlg::OnBrowse},
        {Id::Rename, Notification::Clicked, &CCopyResourcesDlg::OnRename},
        {Id::Clashes, Notification::LabelEditEnded, &CCopyResourcesDlg::OnRenamed},
    });
}

void CCopyResourcesDlg::AddClash(CString& path) {
    m_Clashes[path].push_back(&path);
    m_Sources.SetAt(path, "");
    ++m_nClashes;
}

void CCopyResourcesDlg::OnInitDialog() {
    Item<CControl>(CopyResourcesId::Destination).SetWindowText("Destination Directory: " + m_Destination);
    CListCtrl& list = Item<CListCtrl>(CopyResourcesId::Clashes);
    list.InsertColumn(0, "Destination File Name", 0);
    list.InsertColumn(1, "Resource File", 140, STYLE_PATH);
    m_Sources.ForEach([&list](const CString& source, std::string_view) {
        const int nRow = list.InsertItem(list.GetItemCount(), FileNameOfPath(source));
        list.SetItemText(nRow, 1, source);
    });
}

void CCopyResourcesDlg::OnBrowse() {
    CBrowseFilesDlg dialog(m_Destination, "*.gif;*.jpg;*.jpeg;*.au");
    dialog.DoModal();
}

void CCopyResourcesDlg::OnRename() {
    CListCtrl& list = Item<CListCtrl>(CopyResourcesId::Clashes);
    if (list.GetFocusedItem() < 0) {
        AfxMessageBox("Please select a file to rename first!");
        return;
    }
    list.SetFocus();
    list.EditLabel(list.GetFocusedItem());
}

void CCopyResourcesDlg::OnRenamed() {
    CListCtrl& list = Item<CListCtrl>(CopyResourcesId::Clashes);
    const CListCtrl::CLabelEdit& edit = list.GetLabelEdit();
    if (!edit.m_bCancelled && !edit.m_Text.IsEmpty())
        list.SetItemText(edit.m_nRow, 0, edit.m_Text);
}

void CCopyResourcesDlg::OnOK() {
    const CListCtrl& list = Item<CListCtrl>(CopyResourcesId::Clashes);
    for (int nRow = 0; nRow < list.GetItemCount(); ++nRow) {
        const CString source = list.GetItemText(nRow, 1);
        const CString copy = m_Destination + list.GetItemText(nRow, 0);
        // Nobody hears of a failure, and the texts point at the copy all the same.
        CopyWholeFile(source, copy);
        for (CString* pPath : m_Clashes.at(source))
            *pPath = copy;
    }
    EndDialog(IDOK);
}

CBrowseFilesDlg::CBrowseFilesDlg(const CString& directory, const CString& fileTypes)
    : CDialog(BrowseFilesDescription()), m_Directory(directory), m_FileTypes(fileTypes) {}

void CBrowseFilesDlg::OnInitDialog() {
    if (CheckDirectory())
        ListFiles();
    else
        EndDialog(IDCANCEL);
}

bool CBrowseFilesDlg::CheckDirectory() {
    if (m_Directory.IsEmpty() || m_FileTypes.IsEmpty()) {
        AfxMessageBox("The directory and file type can not be blank!", MessageBoxKind::Warning);
        return false;
    }
    if (m_Directory.ReverseFind('\\') != m_Directory.GetLength() - 1)
        m_Directory += '\\';
    if (m_FileTypes.Right(1) != ";")
        m_FileTypes += ';';
    if (DirectoryExists(m_Directory.Left(m_Directory.GetLength() - 1)))
        return true;
    AfxMessageBox("Directory " + m_Directory + " does not exist!", MessageBoxKind::Warning);
    return false;
}

// The files of one pattern share the icon of its first file.
void CBrowseFilesDlg::ListFiles() {
    CListCtrl& list = Item<CListCtrl>(BrowseFilesId::Files);
    CStringArray icons;
    CString::Position nStart = 0;
    for (auto nEnd = m_FileTypes.Find(';'); nEnd >= 0; nEnd = m_FileTypes.Find(';', nStart)) {
        const CStringArray names = FindFiles(m_Directory, m_FileTypes.Mid(nStart, nEnd - nStart));
        if (!names.IsEmpty())
            icons.Add(m_Directory + names[0]);
        for (const CString& name : names)
            list.InsertItem(list.GetItemCount(), name, static_cast<int>(icons.GetSize()) - 1);
        nStart = nEnd + 1;
    }
    list.SetImageList(icons);
}

} // namespace orrelix
