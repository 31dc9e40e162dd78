// CFileWindow: the window of the open-file dialog.
#pragma once

#include "toolkit/file_dialog.h"

#include <QFileDialog>

namespace orrelix {

class CFileWindow : public QFileDialog {
public:
    // The dialog must outlive the window.
    CFileWindow(CFileDialog& dialog, CPersonKey key, QWidget* pParent);

    // Gives the dialog what the person chose; false when that is no file.
    bool TakeOver();

private:
    void AddEdit(CEdit& edit);

    CFileDialog& m_Dialog;
    CPersonKey m_Key;
};

} // namespace orrelix
