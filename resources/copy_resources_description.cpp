#include "resources/copy_resources_description.h"

namespace orrelix {

const CDialogDescription& CopyResourcesDescription() {
    using namespace describe;
    using Id = CopyResourcesId;
    static const CDialogDescription description{
        "Copy Resources",
        Column(
            {Text(Id::Destination, "", STYLE_SUNKEN | STYLE_PATH, "Destination"),
             ListView(Id::Clashes, "", STYLE_REPORT | STYLE_EDIT_LABELS, "Files with clashing names"),
             Text(Id::Explanation,
                  "These files' names have already been used in the destination directory. If you don't "
                  "rename the destination file's name, the files with same name will be overwritten."),
             Row({Button(IDOK, "OK"), Button(Id::Browse, "&Browse ..."), Button(Id::Rename, "&Rename")})})};
    return description;
}

const CDialogDescription& BrowseFilesDescription() {
    using namespace describe;
    using Id = BrowseFilesId;
    static const CDialogDescription description{
        "Browse Files",
        Column({Text(Id::Heading, "Files Existing in the Destination Directory:"),
                ListView(Id::Files, "", STYLE_SORTED, "Files Existing in the Destination Directory")})};
    return description;
}

} // namespace orrelix
