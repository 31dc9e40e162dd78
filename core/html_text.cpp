#include "core/html_text.h"

#include "platform/refusal.h"

#include <atomic>
#include <limits>

namespace orrelix {

namespace {

std::atomic<std::size_t> g_nMost = std::numeric_limits<std::size_t>::max();

} // namespace

std::size_t GetMostHtml() {
    return g_nMost;
}

void SetMostHtml(std::size_t nBytes) {
    g_nMost = nBytes;
}

void CheckLength(std::size_t nBytes) {
    if (nBytes > g_nMost)
        throw CRefusal("the effect's HTML would take " + std::to_string(nBytes) +
                       " bytes, and no more than " + std::to_string(g_nMost) +
                       " are made; give it fewer items or shorter texts");
}

} // namespace orrelix
