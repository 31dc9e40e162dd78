#include "gadgets/image_files.h"

#include "core/dhtml_gadget.h"
#include "dialogs/copy_resources.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace orrelix {

bool CopyGadgetFile(CString& path, const CString& destination, CStringArray& handled, short force) {
    if (path.IsEmpty())
        return true;
    const CString name = FileNameOfPath(path);
    const CString source = DirectoryOfPath(path) + "\\";
    if (force != 0) {
        CopyWholeFile(source + name, destination + name);
        return true;
    }
    if (!FileExists(path)) {
        path.Empty();
        return true;
    }
    if (source == destination)
        return true;
    if (std::find(handled.begin(), handled.end(), path) != handled.end())
        return true;
    if (FileExists(destination + name))
        return false;
    CopyWholeFile(source + name, destination + name);
    handled.Add(path);
    path = destination + name;
    return true;
}

namespace {

// Copies those that the user needn't be asked about, and hands the others to the dialog.
void CopyFreeImages(std::span<CString> images, const CString& directory, short force,
                    CCopyResourcesDlg& dialog) {
    const CListedDirectories listed;
    std::unordered_set<std::string> copied;
    for (CString& image : images) {
        // CopyGadgetFile walks through its list; with no other path in it, n images take n steps.
        const std::string source(image.View());
        CStringArray handled;
        if (copied.contains(source))
            handled.Add(image);
        if (!CopyGadgetFile(image, directory, handled, force))
            dialog.AddClash(image);
        else if (!handled.IsEmpty())
            copied.insert(source);
    }
}

} // namespace

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
    html.Text(R"(<img src="$$" width=$ height=$ border=$ align="absmiddle">)", directory,
              FileNameOfPath(path), size.m_Width, size.m_Height, size.m_Border);
}

bool RegisterImage(CVignelConfig& config, const CString& path, const CString& webPath) {
    const CString name = FileNameOnDisk(path);
    if (name.IsEmpty())
        return false;
    const VignelResource resource{name, DirectoryOfPath(path) + "\\", webPath};
    return config.AddResource(resource);
}

void RegisterImages(CVignelConfig& config, CStringArray& images, const CString& webPath) {
    const CListedDirectories listed;
    for (CString& image : images) {
        if (!image.IsEmpty() && !RegisterImage(config, image, webPath))
            image.Empty();
    }
}

void CopyImages(std::span<CString> images, const CString& directory, short force) {
    CCopyResourcesDlg dialog;
    dialog.m_Destination = directory;
    CopyFreeImages(images, directory, force, dialog);
    if (dialog.m_nClashes > 0)
        dialog.DoModal();
}

} // namespace orrelix
