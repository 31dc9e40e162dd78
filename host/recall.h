// What has been found out of texts, for those that recur. It forgets all of them when they take too much memory.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orrelix {

// Whether the parsers get a text, or its shape, of which they make the same and which recurs.
enum class Judged { Itself, ByShape };

template <class T>
class CRecall {
public:
    // What find() gives for the text, which isn't asked when the text has been met; until the next call.
    template <class TFind>
    const T& Get(std::string text, TFind find) {
        constexpr size_t kMostBytes = 4 * 1024 * 1024;
        if (const auto known = m_Known.find(text); known != m_Known.end())
            return known->second;
        T found = find(text);
        m_nBytes += text.size();
        if (m_nBytes > kMostBytes) {
            m_Known.clear();
            m_nBytes = text.size();
        }
        return m_Known.emplace(std::move(text), std::move(found)).first->second;
    }

private:
    std::unordered_map<std::string, T> m_Known;
    size_t m_nBytes = 0;
};

} // namespace orrelix
