// CGadgetDialog: the base of the dialogs that Config runs, one per effect. It works on a copy of the gadget, so
// that Cancel at any level changes nothing. A sub-dialog that edits some of the effect's fields is one too: its
// gadget is the copy of the dialog that runs it (EditPart).
#pragma once

#include "controls/field_dialog.h"
#include "controls/remote_directory.h"

namespace orrelix {

template <class TGadget>
class CGadgetDialog : public CFieldDialog {
public:
    TGadget* m_pGadget = nullptr; // set before the run; written on OK only

protected:
    using CFieldDialog::CFieldDialog;

    // The box of a directory where the published page finds files. In the constructor.
    void AddRemoteDirectory(int nEdit, CString& directory) {
        AddFields({{nEdit, directory}});
        m_RemoteDirectories.push_back(&directory);
    }

    // Runs a sub-dialog on the copy.
    void EditPart(CGadgetDialog&& part) {
        part.m_pGadget = &m_Copy;
        part.DoModal();
    }

    // What the controls show of the copy beyond its fields, such as the rows of a list.
    virtual void ShowCopy() {}
    // The other way round, when all fields have been read.
    virtual void ReadCopy() {}
    // The order in which the dialog starts: see CFieldDialog.
    virtual void ShowFields() { ShowTextsLast(); }

    void OnInitDialog() override {
        m_Copy = *m_pGadget;
        ShowCopy();
        ShowFields();
    }

    void OnOK() override {
        UpdateData(true);
        ReadCopy();
        for (CString* pDirectory : m_RemoteDirectories)
            *pDirectory = RemoteDirectory(*pDirectory);
        *m_pGadget = m_Copy;
        EndDialog(IDOK);
    }

    TGadget m_Copy;

private:
    std::vector<CString*> m_RemoteDirectories;
};

} // namespace orrelix
