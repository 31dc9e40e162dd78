// The dialogs of ToolTip.
#pragma once

#include "dialogs/gadget_dialog.h"
#include "gadgets/tool_tip.h"
#include "toolkit/file_dialog.h"

namespace orrelix {

class CToolTipDlg : public CGadgetDialog<CToolTip> {
public:
    CToolTipDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;

private:
    void OnHtmlTagListClosed();
    void OnTipTagListClosed();
    void OnMarqueeWidth();
    void OnImage();

    void EnableUrl() const;
    void EnableMarqueeWidth() const;
};

// Asks for an image file, its size and the directory where the published page finds it. The caller sets the
// fields, runs the dialog and reads them back if it ended in IDOK.
class CInsertImageDlg : public CFieldDialog {
public:
    CInsertImageDlg();

    CString m_FileName; // full path
    CString m_Width;
    CString m_Height;
    CString m_Border;
    CString m_WebPath; // has no control here: CWebPathFileDlg asks for it

protected:
    void OnInitDialog() override { ShowNumbersLast(); }

private:
    void OnBrowse();
};

// Asks for the width of a marquee.
class CMarqueeWidthDlg : public CFieldDialog {
public:
    CMarqueeWidthDlg();

    CString m_Width;

protected:
    void OnInitDialog() override { ShowNumbersLast(); }
};

// The open-file dialog for images, which asks for the image's remote directory too.
class CWebPathFileDlg : public CFileDialog {
public:
    CWebPathFileDlg(const CString& fileName, const CString& webPath);

    // Empty or ending in "/".
    CString GetWebPath() const { return RemoteDirectory(m_WebPath); }

protected:
    void OnAddedEditChanged() override { m_WebPath = GetAddedEdit()->GetWindowText(); }

private:
    CString m_WebPath;
};

} // namespace orrelix
