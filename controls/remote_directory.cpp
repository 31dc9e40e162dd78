#include "controls/remote_directory.h"

#include "platform/paths.h"

namespace orrelix {

CString RemoteDirectory(CString typed) {
    typed = WithSlashes(std::move(typed));
    if (!typed.IsEmpty() && typed.Right(1) != "/")
        typed += '/';
    return typed;
}

} // namespace orrelix
