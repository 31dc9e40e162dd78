/* vignel_server.h: how a host finds, loads and calls a component such as VignelServer.Orrelix, in C, in C++ or in
 * any language that calls C.
 *
 *     char path[VIGNEL_PATH_SIZE];
 *     VignelDispatch* pObject;
 *     void* pLibrary;
 *     if (VignelFindLibrary("VignelServer.Orrelix", path, sizeof path) && (pLibrary = VignelLoad(path)) &&
 *         VignelCreate(pLibrary, &VignelClsidOrrelix, &pObject) >= 0) ...
 *
 * The shapes and the calling order are those of the component object model: an object is a pointer to a table of
 * functions, each of which takes the object first; whoever gets an object releases it, whoever gets a string frees
 * it. On Windows these names stand for the system's own. Everything here is inline: a host links nothing.
 *
 * Threads: an object is used by the thread that created it, which is the one whose windows the dialogs go with.
 */
#ifndef VIGNEL_SERVER_H
#define VIGNEL_SERVER_H

#include <stddef.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

#ifdef __cplusplus
#define VIGNEL_CONSTANT static constexpr
#else
#define VIGNEL_CONSTANT static const
#endif

#ifdef _WIN32
#include <oleauto.h>
#define VIGNEL_CALL STDMETHODCALLTYPE
typedef GUID VignelGuid;
typedef HRESULT VignelResult;
typedef OLECHAR VignelChar;
typedef BSTR VignelString;
typedef VARIANT VignelVariant;
typedef DISPPARAMS VignelArguments;
typedef EXCEPINFO VignelException;
typedef IUnknown VignelUnknown;
typedef IClassFactory VignelClassFactory;
typedef IDispatch VignelDispatch;
#else
#define VIGNEL_CALL
#ifdef __cplusplus
extern "C" {
typedef char16_t VignelChar;
#else
typedef uint16_t VignelChar;
#endif

typedef struct VignelGuid {
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    uint8_t Data4[8];
} VignelGuid;

/* 0 and above: success. */
typedef int32_t VignelResult;

/* UTF-16 with a zero behind it. Its length, in bytes, stands in the four bytes in front; eight bytes in front begins
 * the block that malloc gave. Null is an empty string. VignelAllocString makes one, VignelFreeString ends it. */
typedef VignelChar* VignelString;

typedef struct VignelVariant VignelVariant;
struct VignelVariant {
    uint16_t vt; /* VIGNEL_EMPTY and so on: which member of the union holds */
    uint16_t wReserved1;
    uint16_t wReserved2;
    uint16_t wReserved3;
    union {
        int16_t iVal;    /* VIGNEL_I2 */
        int32_t lVal;    /* VIGNEL_I4 */
        double dblVal;   /* VIGNEL_R8 */
        double date;     /* VIGNEL_DATE: days since 30 December 1899 */
        int16_t boolVal; /* VIGNEL_BOOL: -1 or 0 */
        int32_t scode;   /* VIGNEL_ERROR */
        VignelString bstrVal;
        int16_t* piVal; /* the same, with VIGNEL_BYREF */
        int32_t* plVal;
        double* pdblVal;
        double* pdate;
        int16_t* pboolVal;
        int32_t* pscode;
        VignelString* pbstrVal;
        VignelVariant* pvarVal; /* VIGNEL_BYREF | VIGNEL_VARIANT */
        struct {
            void* pFirst;
            void* pSecond;
        } widest; /* gives the union its size */
    };
};

typedef struct VignelArguments {
    VignelVariant* rgvarg; /* the last argument first */
    int32_t* rgdispidNamedArgs;
    uint32_t cArgs;
    uint32_t cNamedArgs;
} VignelArguments;

typedef struct VignelException VignelException;
struct VignelException {
    uint16_t wCode;
    uint16_t wReserved;
    VignelString bstrSource;      /* whoever asked for the exception frees the strings */
    VignelString bstrDescription; /* a sentence for people */
    VignelString bstrHelpFile;
    uint32_t dwHelpContext;
    void* pvReserved;
    VignelResult (*pfnDeferredFillIn)(VignelException*);
    VignelResult scode;
};

#ifdef __cplusplus
} /* extern "C" */

typedef const VignelGuid& VignelGuidRef;

struct VignelUnknown {
    virtual VignelResult QueryInterface(VignelGuidRef iid, void** ppObject) = 0;
    virtual uint32_t AddRef() = 0;
    virtual uint32_t Release() = 0;
};

struct VignelClassFactory : VignelUnknown {
    virtual VignelResult CreateInstance(VignelUnknown* pOuter, VignelGuidRef iid, void** ppObject) = 0;
    virtual VignelResult LockServer(int32_t bLock) = 0;
};

struct VignelDispatch : VignelUnknown {
    virtual VignelResult GetTypeInfoCount(uint32_t* pnCount) = 0;
    virtual VignelResult GetTypeInfo(uint32_t nInfo, uint32_t nLocale, void** ppInfo) = 0;
    virtual VignelResult GetIDsOfNames(VignelGuidRef iid, VignelChar** ppNames, uint32_t nNames,
                                       uint32_t nLocale, int32_t* pIds) = 0;
    virtual VignelResult Invoke(int32_t nMember, VignelGuidRef iid, uint32_t nLocale, uint16_t flags,
                                VignelArguments* pArguments, VignelVariant* pResult,
                                VignelException* pException, uint32_t* pnWrongArgument) = 0;
};

extern "C" {
#else
typedef const VignelGuid* VignelGuidRef;
typedef struct VignelUnknown VignelUnknown;
typedef struct VignelClassFactory VignelClassFactory;
typedef struct VignelDispatch VignelDispatch;

#define VIGNEL_UNKNOWN_MEMBERS(Self)                                                                         \
    VignelResult (*QueryInterface)(Self*, VignelGuidRef iid, void** ppObject);                               \
    uint32_t (*AddRef)(Self*);                                                                               \
    uint32_t (*Release)(Self*);

typedef struct VignelUnknownVtbl {
    VIGNEL_UNKNOWN_MEMBERS(VignelUnknown)
} VignelUnknownVtbl;
struct VignelUnknown {
    const VignelUnknownVtbl* lpVtbl;
};

typedef struct VignelClassFactoryVtbl {
    VIGNEL_UNKNOWN_MEMBERS(VignelClassFactory)
    VignelResult (*CreateInstance)(VignelClassFactory*, VignelUnknown* pOuter, VignelGuidRef iid,
                                   void** ppObject);
    VignelResult (*LockServer)(VignelClassFactory*, int32_t bLock);
} VignelClassFactoryVtbl;
struct VignelClassFactory {
    const VignelClassFactoryVtbl* lpVtbl;
};

typedef struct VignelDispatchVtbl {
    VIGNEL_UNKNOWN_MEMBERS(VignelDispatch)
    VignelResult (*GetTypeInfoCount)(VignelDispatch*, uint32_t* pnCount);
    VignelResult (*GetTypeInfo)(VignelDispatch*, uint32_t nInfo, uint32_t nLocale, void** ppInfo);
    VignelResult (*GetIDsOfNames)(VignelDispatch*, VignelGuidRef iid, VignelChar** ppNames, uint32_t nNames,
                                  uint32_t nLocale, int32_t* pIds);
    VignelResult (*Invoke)(VignelDispatch*, int32_t nMember, VignelGuidRef iid, uint32_t nLocale,
                           uint16_t flags, VignelArguments* pArguments, VignelVariant* pResult,
                           VignelException* pException, uint32_t* pnWrongArgument);
} VignelDispatchVtbl;
struct VignelDispatch {
    const VignelDispatchVtbl* lpVtbl;
};
#endif
#ifdef __cplusplus
} /* extern "C" */
#endif
#endif /* not Windows */

/* The four entry points of a component's library. */
typedef VignelResult(VIGNEL_CALL* VignelGetClassObjectFunction)(VignelGuidRef clsid, VignelGuidRef iid,
                                                                void** ppFactory);
typedef VignelResult(VIGNEL_CALL* VignelPlainFunction)(
    void); /* DllCanUnloadNow and the two of registration */

/* Kinds of a variant. */
enum {
    VIGNEL_EMPTY = 0,
    VIGNEL_NULL = 1,
    VIGNEL_I2 = 2,
    VIGNEL_I4 = 3,
    VIGNEL_R8 = 5,
    VIGNEL_DATE = 7,
    VIGNEL_BSTR = 8,
    VIGNEL_ERROR = 10,
    VIGNEL_BOOL = 11,
    VIGNEL_VARIANT = 12,
    VIGNEL_BYREF = 0x4000
};

/* What Invoke does. A put has one argument, which is named VIGNEL_NAME_OF_PUT. */
enum { VIGNEL_METHOD = 1, VIGNEL_GET = 2, VIGNEL_PUT = 4, VIGNEL_PUT_REFERENCE = 8 };
enum { VIGNEL_NAME_OF_PUT = -3, VIGNEL_UNKNOWN_ID = -1 };

#define VIGNEL_S_OK ((VignelResult)0)
#define VIGNEL_S_FALSE ((VignelResult)1)
#define VIGNEL_E_UNEXPECTED ((VignelResult)0x8000FFFF)
#define VIGNEL_E_NOTIMPL ((VignelResult)0x80004001)
#define VIGNEL_E_NOINTERFACE ((VignelResult)0x80004002)
#define VIGNEL_E_POINTER ((VignelResult)0x80004003)
#define VIGNEL_E_FAIL ((VignelResult)0x80004005)
#define VIGNEL_E_OUTOFMEMORY ((VignelResult)0x8007000E)
#define VIGNEL_E_INVALIDARG ((VignelResult)0x80070057)
#define VIGNEL_E_UNKNOWNINTERFACE ((VignelResult)0x80020001)
#define VIGNEL_E_MEMBERNOTFOUND ((VignelResult)0x80020003)
#define VIGNEL_E_PARAMNOTFOUND ((VignelResult)0x80020004)
#define VIGNEL_E_TYPEMISMATCH ((VignelResult)0x80020005)
#define VIGNEL_E_UNKNOWNNAME ((VignelResult)0x80020006)
#define VIGNEL_E_NONAMEDARGS ((VignelResult)0x80020007)
#define VIGNEL_E_EXCEPTION ((VignelResult)0x80020009)
#define VIGNEL_E_OVERFLOW ((VignelResult)0x8002000A)
#define VIGNEL_E_BADINDEX ((VignelResult)0x8002000B)
#define VIGNEL_E_BADPARAMCOUNT ((VignelResult)0x8002000E)
#define VIGNEL_E_PARAMNOTOPTIONAL ((VignelResult)0x8002000F)
#define VIGNEL_E_NOAGGREGATION ((VignelResult)0x80040110)
#define VIGNEL_E_CLASSNOTAVAILABLE ((VignelResult)0x80040111)
#define VIGNEL_E_CLASSNOTREG ((VignelResult)0x80040154)

VIGNEL_CONSTANT VignelGuid VignelIidNull = {0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 0}};
VIGNEL_CONSTANT VignelGuid VignelIidUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
VIGNEL_CONSTANT VignelGuid VignelIidClassFactory = {1, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
VIGNEL_CONSTANT VignelGuid VignelIidDispatch = {0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/* VignelServer.Orrelix. */
VIGNEL_CONSTANT VignelGuid VignelClsidOrrelix = {
    0xF298FAA1, 0x907D, 0x11D3, {0xBC, 0x4E, 0x00, 0x40, 0x05, 0x33, 0xC4, 0xC1}};
/* Its properties and methods; VignelIidDispatch gives the same. */
VIGNEL_CONSTANT VignelGuid VignelIidOrrelix = {
    0x7EA44A29, 0x79D0, 0x11D2, {0xB5, 0x3F, 0x00, 0x40, 0x05, 0x3E, 0x35, 0xC8}};
/* A second dispatch interface of the same object, for hosts that work without dialogs. */
VIGNEL_CONSTANT VignelGuid VignelIidInspector = {
    0x5D0A7C4E, 0x1B52, 0x4E0B, {0x9C, 0x37, 0x2A, 0x61, 0xD4, 0x8F, 0x13, 0x60}};
/* The category in which hosts look for components, in the form in which the registry has ids. */
#define VIGNEL_CATEGORY "{2542EDC1-7EFB-11D2-8CA5-0088CC081531}"

enum { VIGNEL_PATH_SIZE = 4096 };

#ifndef _WIN32
/* A string of nCount units; pText null leaves them to be filled. Null when memory runs out. */
static inline VignelString VignelAllocString(const VignelChar* pText, size_t nCount) {
    unsigned char* pBlock;
    VignelString text;
    uint32_t nBytes = (uint32_t)(nCount * sizeof(VignelChar));
    if (nCount > (UINT32_MAX - 16) / sizeof(VignelChar))
        return NULL;
    pBlock = (unsigned char*)malloc(8 + (nCount + 1) * sizeof(VignelChar));
    if (!pBlock)
        return NULL;
    memcpy(pBlock + 4, &nBytes, sizeof nBytes);
    text = (VignelString)(void*)(pBlock + 8);
    if (pText && nCount)
        memcpy(text, pText, nBytes);
    text[nCount] = 0;
    return text;
}

/* In units, without the zero. */
static inline size_t VignelStringLength(const VignelChar* text) {
    uint32_t nBytes;
    if (!text)
        return 0;
    memcpy(&nBytes, (const unsigned char*)(const void*)text - 4, sizeof nBytes);
    return nBytes / sizeof(VignelChar);
}

static inline void VignelFreeString(VignelString text) {
    if (text)
        free((unsigned char*)(void*)text - 8);
}

/* Frees what it holds and makes it empty. */
static inline void VignelClearVariant(VignelVariant* pVariant) {
    if (pVariant->vt == VIGNEL_BSTR)
        VignelFreeString(pVariant->bstrVal);
    memset(pVariant, 0, sizeof *pVariant);
}
#else
static inline VignelString VignelAllocString(const VignelChar* pText, size_t nCount) {
    return SysAllocStringLen(pText, (UINT)nCount);
}
static inline size_t VignelStringLength(const VignelChar* text) {
    return SysStringLen((BSTR)text);
}
static inline void VignelFreeString(VignelString text) {
    SysFreeString(text);
}
static inline void VignelClearVariant(VignelVariant* pVariant) {
    VariantClear(pVariant);
}
#endif

/* One character of UTF-8 at the start of nLeft bytes, at least one; its length goes to *pnLength. A byte that begins
 * none stands for itself as U+DC80 to U+DCFF: so the component gives bytes of files that are no UTF-8, and takes them
 * back. */
static inline uint32_t VignelDecodeUtf8(const char* pBytes, size_t nLeft, size_t* pnLength) {
    static const uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned char* p = (const unsigned char*)pBytes;
    const size_t nLength = p[0] < 0x80   ? 1
                           : p[0] < 0xC0 ? 0
                           : p[0] < 0xE0 ? 2
                           : p[0] < 0xF0 ? 3
                           : p[0] < 0xF8 ? 4
                                         : 0;
    uint32_t character;
    size_t nIndex;
    *pnLength = 1;
    if (nLength == 1)
        return p[0];
    if (nLength == 0 || nLength > nLeft)
        return 0xDC00u + p[0];
    character = p[0] & (0x7Fu >> nLength);
    for (nIndex = 1; nIndex < nLength; ++nIndex) {
        if ((p[nIndex] & 0xC0) != 0x80)
            return 0xDC00u + p[0];
        character = character << 6 | (p[nIndex] & 0x3Fu);
    }
    if (character < smallest[nLength] || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000))
        return 0xDC00u + p[0];
    *pnLength = nLength;
    return character;
}

/* How many bytes of ASCII the bytes begin with, or nearly so many. */
static inline size_t VignelAsciiBytes(const char* pBytes, size_t nBytes) {
    size_t nAt = 0;
    uint64_t eight;
    for (; nAt + sizeof eight <= nBytes; nAt += sizeof eight) {
        memcpy(&eight, pBytes + nAt, sizeof eight);
        if (eight & 0x8080808080808080u)
            break;
    }
    return nAt;
}

/* The same of a string's units. */
static inline size_t VignelAsciiUnits(const VignelChar* text, size_t nUnits) {
    size_t nAt = 0;
    uint64_t four;
    for (; nAt + 4 <= nUnits; nAt += 4) {
        memcpy(&four, text + nAt, sizeof four);
        if (four & 0xFF80FF80FF80FF80u)
            break;
    }
    return nAt;
}

/* A string from nBytes bytes of UTF-8. Null when memory runs out. */
static inline VignelString VignelFromUtf8(const char* pBytes, size_t nBytes) {
    const size_t nAscii = VignelAsciiBytes(pBytes, nBytes);
    size_t nUnits = nAscii, nAt, nLength = 1;
    VignelString text;
    for (nAt = nAscii; nAt < nBytes; nAt += nLength)
        nUnits += VignelDecodeUtf8(pBytes + nAt, nBytes - nAt, &nLength) >= 0x10000 ? 2 : 1;
    text = VignelAllocString(NULL, nUnits);
    for (nAt = 0; text && nAt < nAscii; ++nAt)
        text[nAt] = (VignelChar)(unsigned char)pBytes[nAt];
    for (nUnits = nAscii; text && nAt < nBytes; nAt += nLength) {
        const uint32_t character = VignelDecodeUtf8(pBytes + nAt, nBytes - nAt, &nLength);
        if (character >= 0x10000) {
            text[nUnits++] = (VignelChar)(0xD7C0 + (character >> 10));
            text[nUnits++] = (VignelChar)(0xDC00 + (character & 0x3FF));
        } else {
            text[nUnits++] = (VignelChar)character;
        }
    }
    return text;
}

/* UTF-8 of a string, with a zero behind it; free it with free. Its length without the zero goes to *pnBytes, which
 * may be null. What is no character becomes "?". Null when memory runs out. */
static inline char* VignelToUtf8(const VignelChar* text, size_t* pnBytes) {
    const size_t nUnits = VignelStringLength(text), nAscii = VignelAsciiUnits(text, nUnits);
    char* pBytes = (char*)malloc(3 * nUnits + 1);
    size_t nAt, nBytes = nAscii;
    for (nAt = 0; pBytes && nAt < nAscii; ++nAt)
        pBytes[nAt] = (char)(unsigned char)text[nAt];
    for (; pBytes && nAt < nUnits; ++nAt) {
        uint32_t character = text[nAt];
        if ((character & 0xFC00) == 0xD800 && nAt + 1 < nUnits && (text[nAt + 1] & 0xFC00) == 0xDC00)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++nAt] - 0xDC00u);
        else if (character >= 0xD800 && character < 0xE000 && (character < 0xDC80 || character > 0xDCFF))
            character = '?';
        if (character < 0x80 || (character >= 0xDC80 && character <= 0xDCFF)) {
            pBytes[nBytes++] = (char)(unsigned char)character;
            continue;
        }
        if (character >= 0x10000) {
            pBytes[nBytes++] = (char)(unsigned char)(0xF0 | character >> 18);
            pBytes[nBytes++] = (char)(unsigned char)(0x80 | (character >> 12 & 0x3F));
        } else if (character >= 0x800) {
            pBytes[nBytes++] = (char)(unsigned char)(0xE0 | character >> 12);
        } else {
            pBytes[nBytes++] = (char)(unsigned char)(0xC0 | character >> 6);
            pBytes[nBytes++] = (char)(unsigned char)(0x80 | (character & 0x3F));
            continue;
        }
        pBytes[nBytes++] = (char)(unsigned char)(0x80 | (character >> 6 & 0x3F));
        pBytes[nBytes++] = (char)(unsigned char)(0x80 | (character & 0x3F));
    }
    if (pBytes)
        pBytes[nBytes] = 0;
    if (pnBytes)
        *pnBytes = nBytes;
    return pBytes;
}

/* How C and C++ spell the same call. */
#ifdef __cplusplus
#define VIGNEL_REF(guid) (guid)
#define VIGNEL_CALL_OF(pObject, function, ...) ((pObject)->function(__VA_ARGS__))
#define VIGNEL_RELEASE(pObject) ((pObject)->Release())
#else
#define VIGNEL_REF(guid) (&(guid))
#define VIGNEL_CALL_OF(pObject, function, ...) ((pObject)->lpVtbl->function((pObject), __VA_ARGS__))
#define VIGNEL_RELEASE(pObject) ((pObject)->lpVtbl->Release(pObject))
#endif

/* Calls a member by its name. The arguments stand in the order of the call and stay the caller's; *pResult, which may
 * be null, is the caller's to clear. A sentence about a failure goes to *pMessage, if both are there; free it with
 * VignelFreeString. */
static inline VignelResult VignelCall(VignelDispatch* pObject, const char* pName, uint16_t flags,
                                      const VignelVariant* pArguments, uint32_t nArguments,
                                      VignelVariant* pResult, VignelString* pMessage) {
    enum { MOST = 8 };
    VignelVariant reversed[MOST];
    VignelArguments call;
    VignelException exception;
    VignelString name = VignelFromUtf8(pName, strlen(pName));
    int32_t nMember = VIGNEL_UNKNOWN_ID, nNameOfPut = VIGNEL_NAME_OF_PUT;
    uint32_t nAt;
    VignelResult result;
    if (nArguments > MOST || !name) {
        VignelFreeString(name);
        return name ? VIGNEL_E_BADPARAMCOUNT : VIGNEL_E_OUTOFMEMORY;
    }
    result = VIGNEL_CALL_OF(pObject, GetIDsOfNames, VIGNEL_REF(VignelIidNull), &name, 1, 0, &nMember);
    VignelFreeString(name);
    if (result < 0)
        return result;
    for (nAt = 0; nAt < nArguments; ++nAt)
        reversed[nArguments - 1 - nAt] = pArguments[nAt];
    call.rgvarg = reversed;
    call.cArgs = nArguments;
    call.cNamedArgs = flags & VIGNEL_PUT ? 1 : 0;
    call.rgdispidNamedArgs = flags & VIGNEL_PUT ? &nNameOfPut : NULL;
    memset(&exception, 0, sizeof exception);
    result = VIGNEL_CALL_OF(pObject, Invoke, nMember, VIGNEL_REF(VignelIidNull), 0, flags, &call, pResult,
                            &exception, NULL);
    VignelFreeString(exception.bstrSource);
    VignelFreeString(exception.bstrHelpFile);
    if (pMessage)
        *pMessage = exception.bstrDescription;
    else
        VignelFreeString(exception.bstrDescription);
    return result;
}

#ifndef _WIN32
#include <dirent.h>
#include <dlfcn.h>
#include <pwd.h>
#include <stdio.h>
#include <strings.h>
#include <unistd.h>

/* The registry of components: text files named *.ini in the folder vignel of the user's configuration folder, then of
 * the system's (XDG Base Directory convention). A line "[KEY]" stands before the lines "NAME=VALUE" of a key; "@" is
 * the key's default value. The keys are those below HKEY_CLASSES_ROOT; where two files have a value, the first counts.
 * Nothing is escaped, and the case of keys and names doesn't count. */

/* Is told a key (pName null) or a value of it; gives 0 to be told more. */
typedef int (*VignelRegistryVisitor)(void* pContext, const char* pKey, const char* pName, const char* pValue);

static inline int VignelVisitRegistryFile(const char* pPath, VignelRegistryVisitor visit, void* pContext) {
    char line[VIGNEL_PATH_SIZE + 256], key[512] = "";
    int bStopped = 0;
    FILE* pFile = fopen(pPath, "re");
    while (pFile && !bStopped && fgets(line, sizeof line, pFile)) {
        char* pValue = strchr(line, '=');
        size_t nLength = strcspn(line, "\r\n");
        if (line[0] == '[' && nLength > 2 && line[nLength - 1] == ']' && nLength < sizeof key) {
            memcpy(key, line + 1, nLength - 2);
            key[nLength - 2] = 0;
            bStopped = visit(pContext, key, NULL, NULL);
        } else if (key[0] && pValue && line[0] != ';' && line[nLength] != 0) {
            line[nLength] = 0;
            *pValue++ = 0;
            bStopped = visit(pContext, key, line, pValue);
        }
    }
    if (pFile)
        fclose(pFile);
    return bStopped;
}

static inline int VignelIsRegistryFile(const struct dirent* pEntry) {
    const size_t nLength = strlen(pEntry->d_name);
    return nLength > 4 && strcmp(pEntry->d_name + nLength - 4, ".ini") == 0;
}

/* Of one configuration folder, its files in the order of their names. */
static inline int VignelVisitRegistryFolder(const char* pFolder, VignelRegistryVisitor visit,
                                            void* pContext) {
    char path[VIGNEL_PATH_SIZE];
    struct dirent** ppEntries;
    int nEntries, nAt, bStopped = 0;
    if (pFolder[0] != '/' || snprintf(path, sizeof path, "%s/vignel", pFolder) >= (int)sizeof path)
        return 0;
    nEntries = scandir(path, &ppEntries, VignelIsRegistryFile, alphasort);
    for (nAt = 0; nAt < nEntries; ++nAt) {
        if (!bStopped &&
            snprintf(path, sizeof path, "%s/vignel/%s", pFolder, ppEntries[nAt]->d_name) < (int)sizeof path)
            bStopped = VignelVisitRegistryFile(path, visit, pContext);
        free(ppEntries[nAt]);
    }
    if (nEntries >= 0)
        free(ppEntries);
    return bStopped;
}

/* Tells everything that is registered, the user's first. Not 0 when the visitor has had enough. */
static inline int VignelVisitRegistry(VignelRegistryVisitor visit, void* pContext) {
    const char* pFolders = getenv("XDG_CONFIG_HOME");
    char folder[VIGNEL_PATH_SIZE];
    if (!pFolders || pFolders[0] != '/') {
        const char* pHome = getenv("HOME");
        const struct passwd* pUser = pHome && *pHome ? NULL : getpwuid(getuid());
        if (pUser)
            pHome = pUser->pw_dir;
        snprintf(folder, sizeof folder, "%s/.config", pHome ? pHome : "");
        pFolders = pHome && *pHome ? folder : "";
    }
    if (VignelVisitRegistryFolder(pFolders, visit, pContext))
        return 1;
    pFolders = getenv("XDG_CONFIG_DIRS");
    for (pFolders = pFolders && *pFolders ? pFolders : "/etc/xdg"; *pFolders;) {
        const size_t nLength = strcspn(pFolders, ":");
        if (nLength < sizeof folder) {
            memcpy(folder, pFolders, nLength);
            folder[nLength] = 0;
            if (VignelVisitRegistryFolder(folder, visit, pContext))
                return 1;
        }
        pFolders += nLength + (pFolders[nLength] == ':');
    }
    return 0;
}

typedef struct VignelRegistryQuery {
    const char* pKey;
    const char* pName;
    char* pValue;
    size_t nSize;
    unsigned nSkip; /* of the keys that begin with pKey, where that is asked for */
} VignelRegistryQuery;

static inline int VignelTakeValue(void* pContext, const char* pKey, const char* pName, const char* pValue) {
    VignelRegistryQuery* pQuery = (VignelRegistryQuery*)pContext;
    return pName && strcasecmp(pKey, pQuery->pKey) == 0 && strcasecmp(pName, pQuery->pName) == 0 &&
           snprintf(pQuery->pValue, pQuery->nSize, "%s", pValue) < (int)pQuery->nSize;
}

/* The value of a name ("@" for the default) below a key, as a text. 0 when there is none, or none that fits. */
static inline int VignelGetRegistered(const char* pKey, const char* pName, char* pValue, size_t nSize) {
    VignelRegistryQuery query = {pKey, pName, pValue, nSize, 0};
    return VignelVisitRegistry(VignelTakeValue, &query);
}

/* The library of a component, by its ProgID. 0 when it isn't registered. */
static inline int VignelFindLibrary(const char* pProgId, char* pPath, size_t nSize) {
    char key[512], clsid[64];
    if (snprintf(key, sizeof key, "%s\\CLSID", pProgId) >= (int)sizeof key ||
        !VignelGetRegistered(key, "@", clsid, sizeof clsid))
        return 0;
    snprintf(key, sizeof key, "CLSID\\%s\\InProcServer32", clsid);
    return VignelGetRegistered(key, "@", pPath, nSize);
}

/* "CLSID\{class id}\Implemented Categories\{category id}" */
static inline int VignelTakeMember(void* pContext, const char* pKey, const char* pName, const char* pValue) {
    VignelRegistryQuery* pQuery = (VignelRegistryQuery*)pContext;
    const size_t nClsid = 38, nKey = strlen(pKey), nEnd = strlen(pQuery->pKey);
    (void)pValue;
    if (pName || nKey != 6 + nClsid + nEnd || strncasecmp(pKey, "CLSID\\", 6) != 0 ||
        strcasecmp(pKey + 6 + nClsid, pQuery->pKey) != 0 || pQuery->nSkip-- > 0)
        return 0;
    snprintf(pQuery->pValue, pQuery->nSize, "%.*s", (int)nClsid, pKey + 6);
    return 1;
}

/* The ProgID of component nIndex, from 0, of a category such as VIGNEL_CATEGORY. 0 behind the last. One that both the
 * user and the system have registered comes twice. */
static inline int VignelFindInCategory(const char* pCategory, unsigned nIndex, char* pProgId, size_t nSize) {
    char end[96], clsid[64], key[128];
    VignelRegistryQuery query = {end, NULL, clsid, sizeof clsid, nIndex};
    snprintf(end, sizeof end, "\\Implemented Categories\\%s", pCategory);
    if (!VignelVisitRegistry(VignelTakeMember, &query))
        return 0;
    snprintf(key, sizeof key, "CLSID\\%s\\ProgID", clsid);
    return VignelGetRegistered(key, "@", pProgId, nSize);
}

/* The class id of a text "{F298FAA1-907D-11D3-BC4E-00400533C4C1}". 0 when it is none. */
static inline int VignelParseGuid(const char* pText, VignelGuid* pGuid) {
    unsigned v[11];
    int nAt, nEnd = 0;
    if (sscanf(pText, "{%8x-%4x-%4x-%2x%2x-%2x%2x%2x%2x%2x%2x}%n", v, v + 1, v + 2, v + 3, v + 4, v + 5,
               v + 6, v + 7, v + 8, v + 9, v + 10, &nEnd) != 11 ||
        nEnd != 38)
        return 0;
    pGuid->Data1 = v[0];
    pGuid->Data2 = (uint16_t)v[1];
    pGuid->Data3 = (uint16_t)v[2];
    for (nAt = 0; nAt < 8; ++nAt)
        pGuid->Data4[nAt] = (uint8_t)v[3 + nAt];
    return 1;
}

/* Loads a component's library. Null when that isn't possible; dlerror says why. */
static inline void* VignelLoad(const char* pPath) {
    return dlopen(pPath, RTLD_NOW | RTLD_LOCAL);
}

/* An entry point of the library, or null. */
static inline void* VignelEntry(void* pLibrary, const char* pName) {
    return dlsym(pLibrary, pName);
}

/* Unloads the library, unless an object of it still lives. 0 when it stays. */
static inline int VignelUnload(void* pLibrary) {
    VignelPlainFunction canUnload;
    void* pEntry = VignelEntry(pLibrary, "DllCanUnloadNow");
    memcpy(&canUnload, &pEntry, sizeof canUnload);
    return pEntry && canUnload() == VIGNEL_S_OK && dlclose(pLibrary) == 0;
}

/* A new object of a class of the library, by its dispatch interface. The caller releases it. */
static inline VignelResult VignelCreate(void* pLibrary, const VignelGuid* pClsid, VignelDispatch** ppObject) {
    VignelGetClassObjectFunction getClassObject;
    void *pEntry = VignelEntry(pLibrary, "DllGetClassObject"), *pFactory = NULL, *pObject = NULL;
    VignelResult result;
    *ppObject = NULL;
    if (!pEntry)
        return VIGNEL_E_CLASSNOTAVAILABLE;
    memcpy(&getClassObject, &pEntry, sizeof getClassObject);
    result = getClassObject(VIGNEL_REF(*pClsid), VIGNEL_REF(VignelIidClassFactory), &pFactory);
    if (result < 0)
        return result;
    result = VIGNEL_CALL_OF((VignelClassFactory*)pFactory, CreateInstance, NULL,
                            VIGNEL_REF(VignelIidDispatch), &pObject);
    VIGNEL_RELEASE((VignelClassFactory*)pFactory);
    if (result >= 0)
        *ppObject = (VignelDispatch*)pObject;
    return result;
}
#endif /* not Windows */

#endif /* VIGNEL_SERVER_H */
