/* A host that links the library instead of loading it. */
#include <vignel_server.h>

extern VignelResult DllCanUnloadNow(void);

int main(void) {
    return DllCanUnloadNow() == VIGNEL_S_OK ? 0 : 1;
}
