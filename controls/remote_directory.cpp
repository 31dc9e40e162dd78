#include "controls/remote_directory.h"

namespace orrelix {

CString RemoteDirectory(CString typed) {
    typed.Replace("\\", "/");
    if (!typed.IsEmpty() && typed.Right(1) != "/")
        typed += '/';
    return typed;
}

} // namespace orrelix
