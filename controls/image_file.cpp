#include "controls/image_file.h"

#include "toolkit/dialog_description.h"
#include "toolkit/file_dialog.h"

namespace orrelix {

bool ChooseImageFile(CString& path) {
    CFileDialog dialog(path, kImageFileFilter);
    if (dialog.DoModal() != IDOK)
        return false;
    path = dialog.GetPathName();
    return true;
}

} // namespace orrelix
