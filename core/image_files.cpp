#include "core/image_files.h"

#include "core/dhtml_gadget.h"
#include "dialogs/copy_resources.h"
#include "platform/files.h"

#include <algorithm>

CString ImageDirectoryOfMode(CVignelConfig& config, short mode, const CStringArray& images,
                             const CString& remoteDirectory) {
    const bool bImages =
        std::any_of(images.begin(), images.end(), [](const CString& image) { return !image.IsEmpty(); });
    return bImages ? DirectoryOfMode(config, mode, remoteDirectory) : CString();
}

void WriteItemImage(CHtmlText& html, const CString& directory, const CString& path,
                    const CCoolLinkImage& size) {
    if (path.IsEmpty())
        return;
    html.Text(R"(<img src=")", directory, FileNameOfPath(path), R"(" width=)", size.m_Width,
              " height=", size.m_Height, " border=", size.m_Border, R"( align="absmiddle">)");
}

bool RegisterImage(CVignelConfig& config, const CString& path, const CString& webPath) {
    const CString name = FileNameOnDisk(path);
    return !name.IsEmpty() && config.AddResource({name, DirectoryOfPath(path) + "\\", webPath});
}

void RegisterImages(CVignelConfig& config, CStringArray& images, const CString& webPath) {
    for (CString& image : images) {
        if (!image.IsEmpty() && !RegisterImage(config, image, webPath))
            image.Empty();
    }
}

void CopyImages(std::span<CString> images, const CString& directory, short force) {
    CCopyResourcesDlg dialog;
    dialog.m_Destination = directory;
    CStringArray handled;
    for (CString& image : images) {
        if (!CopyGadgetFile(image, directory, handled, force))
            dialog.AddClash(image);
    }
    if (dialog.m_nClashes > 0)
        dialog.DoModal();
}
