#include "controls/remote_directory.h"

CString RemoteDirectory(CString typed) {
    typed.Replace("\\", "/");
    if (!typed.IsEmpty() && typed.Right(1) != "/")
        typed += '/';
    return typed;
}
