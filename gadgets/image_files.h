// The images that a user picks for an effect: their place in the page and their files.
#pragma once

#include "core/html_text.h"
#include "core/vignel_config.h"
#include "platform/array.h"
#include "platform/string.h"

#include <span>

namespace orrelix {

// The copy of a user's file whose full path the gadget holds in `path`. `destination` is a directory with a
// backslash at its end; `handled` collects the paths that one run has copied. False when a file of that name
// is there already and the user has to be asked: nothing has been copied then. On a copy `path` becomes that
// of the copy, whether it could be made or not; where the file certainly doesn't exist it becomes empty; with
// `force` not 0 the file is copied over whatever is there and `path` stays.
bool CopyGadgetFile(CString& path, const CString& destination, CStringArray& handled, short force);

// The size of an image, in pixels as decimal text; empty where none was given.
struct CCoolLinkImage {
    CString m_Height;
    CString m_Width;
    CString m_Border;

    friend bool operator==(const CCoolLinkImage&, const CCoolLinkImage&) = default;
};

// The directory by which a text of this mode refers to images. The store's preview path is looked at only
// when there is one of them.
CString ImageDirectoryOfMode(CVignelConfig& config, short mode, const CStringArray& images,
                             const CString& remoteDirectory);

// Writes the image tag of a list's item; nothing for an empty path. `directory` is that by which the page
// refers to images, empty or with its separator at the end.
void WriteItemImage(CHtmlText& html, const CString& directory, const CString& path,
                    const CCoolLinkImage& size);

// Adds the resource of an image: its name as the disk spells it, its directory as the path does. False when
// certainly no file of that name, in whatever case, is there.
bool RegisterImage(CVignelConfig& config, const CString& path, const CString& webPath);

// The same for all images of a list. Empties the paths of lost files.
void RegisterImages(CVignelConfig& config, CStringArray& images, const CString& webPath);

// Copies images to a directory, given with a backslash at its end, and points their paths at the copies. What
// would land on a file of the same name is asked about, unless `force` isn't 0: then all are copied over what
// is there, and the paths stay.
void CopyImages(std::span<CString> images, const CString& directory, short force);

} // namespace orrelix
