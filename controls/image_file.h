// The choice of an image file.
#pragma once

#include "platform/string.h"

namespace orrelix {

inline constexpr char kImageFileFilter[] = "Image Files(*.GIF,*.JPG.*.JPEG) | *.gif;*.jpg;*.jpeg ||";

// Runs the open-file dialog, starting at the path. True when the person chose a file; the path is then its full
// one, and else stays.
bool ChooseImageFile(CString& path);

} // namespace orrelix
