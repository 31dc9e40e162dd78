// The start of every test program. They hold the component within themselves, so they say where its scripts lie.
#include "platform/module.h"
#include "platform/paths.h"

#include <gtest/gtest.h>

int main(int nArguments, char** ppArguments) {
    orrelix::SetModuleDirectory(orrelix::FromSystemPath(ORRELIX_SCRIPT_DIR));
    testing::InitGoogleTest(&nArguments, ppArguments);
    return RUN_ALL_TESTS();
}
