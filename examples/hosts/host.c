/* A host in C: host [CONFIGURATION FILE [NEW FILE]]. It finds the component, says what it is called, reads a file, lists
 * what a page needs of it and writes it anew. Where there is a screen and no file, its user makes an effect.
 *
 *     cc -std=gnu11 host.c $(pkg-config --cflags VignelOrrelix)
 */
#include <vignel_server.h>

#include <stdio.h>

static VignelVariant Text(const char* pText) {
    VignelVariant value = {.vt = VIGNEL_BSTR};
    value.bstrVal = VignelFromUtf8(pText, strlen(pText));
    return value;
}

static VignelVariant Number(int number) {
    VignelVariant value = {.vt = VIGNEL_I4};
    value.lVal = number;
    return value;
}

/* Calls a member with up to two arguments, which it frees. Ends the program where the call fails. */
static VignelVariant Call(VignelDispatch* pObject, uint16_t kind, const char* pName, uint32_t nArguments,
                          VignelVariant first, VignelVariant second) {
    VignelVariant arguments[2] = {first, second}, result = {.vt = VIGNEL_EMPTY};
    const VignelResult code = VignelCall(pObject, pName, kind, arguments, nArguments, &result, NULL);
    VignelClearVariant(&arguments[0]);
    VignelClearVariant(&arguments[1]);
    if (code < 0) {
        fprintf(stderr, "host: %s: error 0x%08X\n", pName, (unsigned)code);
        exit(1);
    }
    return result;
}

static const VignelVariant none;
#define METHOD(pObject, pName) Call(pObject, VIGNEL_METHOD, pName, 0, none, none)
#define METHOD1(pObject, pName, first) Call(pObject, VIGNEL_METHOD, pName, 1, first, none)
#define METHOD2(pObject, pName, first, second) Call(pObject, VIGNEL_METHOD, pName, 2, first, second)

static void Print(const char* pWhat, VignelVariant value) {
    char* pText = VignelToUtf8(value.bstrVal, NULL);
    printf("%s: %s\n", pWhat, pText ? pText : "");
    free(pText);
    VignelClearVariant(&value);
}

static void PrintSegment(VignelDispatch* pObject, int nPosition) {
    VignelVariant position = METHOD1(pObject, "GetHTMLPosition", Number(nPosition));
    VignelVariant body = METHOD2(pObject, "GetHTMLBody", Number(nPosition), Number(1));
    size_t nBytes = 0;
    char* pPosition = VignelToUtf8(position.bstrVal, NULL);
    free(VignelToUtf8(body.bstrVal, &nBytes));
    printf("segment %s: %zu bytes\n", pPosition ? pPosition : "", nBytes);
    free(pPosition);
    VignelClearVariant(&position);
    VignelClearVariant(&body);
}

static int Fail(const char* pSubject, const char* pText) {
    fprintf(stderr, "host: %s%s\n", pSubject, pText);
    return 1;
}

int main(int nArguments, char** ppArguments) {
    char progId[256], path[VIGNEL_PATH_SIZE];
    void *pLibrary, *pInspector = NULL;
    VignelDispatch* pObject;
    int nAt, nResult = 0;
    if (!VignelFindInCategory(VIGNEL_CATEGORY, 0, progId, sizeof progId) ||
        !VignelFindLibrary(progId, path, sizeof path))
        return Fail("", "no component is registered");
    printf("component: %s\n", progId);
    if (!(pLibrary = VignelLoad(path)) || VignelCreate(pLibrary, &VignelClsidOrrelix, &pObject) < 0 ||
        pObject->lpVtbl->QueryInterface(pObject, &VignelIidInspector, &pInspector) < 0)
        return Fail(path, " can't be loaded");
    Print("name", METHOD2(pInspector, "GetText", METHOD(pObject, "GetResourceInstance"),
                          METHOD(pObject, "GetVignelNameID")));
    Call(pObject, VIGNEL_PUT, "Title", 1, Text("news"), none);
    if (nArguments > 1 && !METHOD1(pObject, "ReadConfigFile", Text(ppArguments[1])).boolVal)
        return Fail(ppArguments[1], " can't be read");
    if (nArguments == 1 && METHOD(pInspector, "CanShowDialogs").boolVal && !METHOD(pObject, "Config").boolVal)
        return 1; /* cancelled */
    Print("title", Call(pObject, VIGNEL_GET, "Title", 0, none, none));
    for (nAt = METHOD(pObject, "GetHTMLSegmentNumber").iVal - 1; nAt >= 0; --nAt)
        PrintSegment(pObject, nAt);
    for (nAt = 0; nAt < METHOD(pObject, "GetResourceNumber").iVal; ++nAt)
        Print("resource", METHOD1(pObject, "GetResourceName", Number(nAt)));
    if (nArguments > 2 && !METHOD1(pObject, "WriteConfigFile", Text(ppArguments[2])).boolVal)
        nResult = Fail(ppArguments[2], " can't be written");
    VIGNEL_RELEASE((VignelDispatch*)pInspector);
    VIGNEL_RELEASE(pObject);
    VignelUnload(pLibrary);
    return nResult;
}
