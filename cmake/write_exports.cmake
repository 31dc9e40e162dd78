# Writes the version script EXPORTS: the entry points, and every name of ours that the files listed in OBJECTS want.
file(STRINGS ${OBJECTS} objects)
set(names)
set(entry_points DllGetClassObject DllCanUnloadNow DllRegisterServer DllUnregisterServer)
if(objects)
    execute_process(COMMAND ${NM} --undefined-only --format=posix ${objects} OUTPUT_VARIABLE wanted
        COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "_Z[A-Z]*7orrelix[A-Za-z0-9_]*|_ZT[VISC]N?7orrelix[A-Za-z0-9_]*" names "${wanted}")
    list(REMOVE_DUPLICATES names)
    list(SORT names)
endif()
list(JOIN entry_points ";\n    " exports)
foreach(name ${names})
    string(APPEND exports ";\n    ${name}")
endforeach()
file(WRITE ${EXPORTS} "{
global:
    ${exports};
local:
    *;
};
")
