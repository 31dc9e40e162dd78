#include "tests/faults/failing_heap.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

constinit CFailingHeap g_heap;

namespace {

template <class TAllocate>
void* Allocate(TAllocate allocate) {
    void* pBlock = g_heap.Grants() ? allocate() : nullptr;
    g_heap.m_nLive += pBlock != nullptr;
    if (!pBlock)
        errno = ENOMEM;
    return pBlock;
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
// The sanitizer has the functions of C for itself.
void* operator new(std::size_t nSize) {
    if (void* pBlock = Allocate([=] { return std::malloc(nSize); }))
        return pBlock;
    throw std::bad_alloc();
}

void operator delete(void* pBlock) noexcept {
    g_heap.m_nLive -= pBlock != nullptr;
    std::free(pBlock);
}

void operator delete(void* pBlock, std::size_t) noexcept {
    operator delete(pBlock);
}
#else
extern "C" {

void* __libc_malloc(size_t nSize);
void* __libc_calloc(size_t nCount, size_t nSize);
void* __libc_realloc(void* pBlock, size_t nSize);
void __libc_free(void* pBlock);

void* malloc(size_t nSize) {
    return Allocate([=] { return __libc_malloc(nSize); });
}

void* calloc(size_t nCount, size_t nSize) {
    return Allocate([=] { return __libc_calloc(nCount, nSize); });
}

void* realloc(void* pBlock, size_t nSize) {
    void* pMoved = Allocate([=] { return __libc_realloc(pBlock, nSize); });
    g_heap.m_nLive -= pBlock && pMoved;
    return pMoved;
}

void free(void* pBlock) {
    g_heap.m_nLive -= pBlock != nullptr;
    __libc_free(pBlock);
}
}
#endif
