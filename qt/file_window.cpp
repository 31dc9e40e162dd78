#include "qt/file_window.h"

#include "qt/text.h"
#include "toolkit/dialog_description.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace orrelix {

namespace {

QStringList NameFilters(const CFileDialog& dialog) {
    QStringList filters;
    for (const CFileDialog::CFilter& filter : dialog.GetFilters()) {
        QStringList patterns;
        for (const CString& pattern : filter.m_Patterns)
            patterns += ToQt(pattern);
        filters += ToQt(filter.m_Name) + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

} // namespace

CFileWindow::CFileWindow(CFileDialog& dialog, CPersonKey key, QWidget* pParent)
    : QFileDialog(pParent), m_Dialog(dialog), m_Key(key) {
    setFileMode(ExistingFile);
    setNameFilters(NameFilters(dialog));
    const QFileInfo start(PathToQt(dialog.GetPathName()));
    if (start.isAbsolute() && start.dir().exists())
        setDirectory(start.path());
    if (start.exists())
        selectFile(start.fileName());
    if (CEdit* pEdit = dialog.GetAddedEdit())
        AddEdit(*pEdit);
}

// Only Qt's own dialog has room for a box of somebody else's.
void CFileWindow::AddEdit(CEdit& edit) {
    setOption(DontUseNativeDialog);
    auto* pLabel = new QLabel(ToQt(m_Dialog.GetAddedLabel()), this);
    auto* pBox = new QLineEdit(ToQt(edit.GetWindowText()), this);
    pLabel->setBuddy(pBox);
    pBox->setAccessibleName(ToQt(AccessibleNameOf({.m_pLabel = m_Dialog.GetAddedLabel()})));
    connect(pBox, &QLineEdit::textChanged, this,
            [this, &edit](const QString& text) { edit.PersonTypes(m_Key, FromQt(text)); });
    if (auto* pGrid = qobject_cast<QGridLayout*>(layout())) {
        const int nRow = pGrid->rowCount();
        pGrid->addWidget(pLabel, nRow, 0);
        pGrid->addWidget(pBox, nRow, 1);
    }
}

bool CFileWindow::TakeOver() {
    const QStringList files = selectedFiles();
    if (files.isEmpty() || !QFileInfo(files.first()).isFile())
        return false;
    m_Dialog.PersonChooses(m_Key, PathFromQt(files.first()));
    return true;
}

} // namespace orrelix
