#!/bin/sh
# What LIBRARY shows to a linker: its four entry points and, in its own namespace, what the windows' library needs. Nothing
# is unique, which would keep it loaded for ever.
entries='T DllCanUnloadNow T DllGetClassObject T DllRegisterServer T DllUnregisterServer'
others=$(nm -DC --defined-only "$1" | cut -c18- | sort | grep -vE '^[BDRTVW] ((typeinfo|typeinfo name|vtable) for )?orrelix::')
[ "$(echo $others)" = "$entries" ] || { echo "$others"; exit 1; }
