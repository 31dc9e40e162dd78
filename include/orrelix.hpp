// orrelix.hpp: VignelServer.Orrelix for hosts in C++, over vignel_server.h. Nothing has to be linked.
//
//     vignel::Orrelix page;                       // finds, loads and creates it
//     page.SetTitle("news");
//     if (page.Config())                          // the user's dialogs; false for Cancel
//         page.WriteConfigFile("/home/ann/news.cfg");
//     std::string html = page.GetHTMLBody(0, 1);  // as published, for the place at the cursor
//
// Texts are UTF-8. A call that fails throws vignel::Error; where a host wants no exceptions, it gives a vignel::Result
// as the last argument of Call, Get or Put, which tells then. C++17.
#pragma once

#include "vignel_server.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vignel {

// How a call went: a result code and, where the component gives one, a sentence.
struct Result {
    VignelResult code = VIGNEL_S_OK;
    std::string message;

    explicit operator bool() const { return code >= 0; }
};

class Error : public std::runtime_error {
public:
    // The component's own sentence, or else the code of what was called.
    Error(const std::string& called, const Result& result)
        : std::runtime_error(result.message.empty() ? called + ": " + CodeText(result.code) : result.message),
          code(result.code) {}

    const VignelResult code;

private:
    static std::string CodeText(VignelResult code) {
        char text[24];
        snprintf(text, sizeof text, "error 0x%08X", static_cast<unsigned>(code));
        return text;
    }
};

// Times as LastUpdateTime has them: days since 30 December 1899, without a time zone.
inline double DaysOf(std::chrono::system_clock::time_point time) {
    constexpr double kDaysTo1970 = 25569;
    return kDaysTo1970 + std::chrono::duration<double, std::ratio<86400>>(time.time_since_epoch()).count();
}

// A list that crosses as one text.
using Items = std::vector<std::string>;

// A variant that frees what it holds.
class Value {
public:
    Value() noexcept : m_Variant() {}
    Value(std::string_view text) : m_Variant() {
        m_Variant.vt = VIGNEL_BSTR;
        m_Variant.bstrVal = VignelFromUtf8(text.data(), text.size());
        if (!m_Variant.bstrVal)
            throw std::bad_alloc();
    }
    Value(const std::string& text) : Value(std::string_view(text)) {}
    Value(const char* pText) : Value(std::string_view(pText)) {}
    Value(const std::filesystem::path& path) : Value(std::string_view(path.native())) {}
    Value(const Items& items) : Value(Joined(items)) {}
    Value(int number) : m_Variant() {
        m_Variant.vt = VIGNEL_I4;
        m_Variant.lVal = number;
    }
    Value(double date) : m_Variant() {
        m_Variant.vt = VIGNEL_DATE;
        m_Variant.date = date;
    }
    Value(Value&& other) noexcept : m_Variant(other.m_Variant) { other.m_Variant = VignelVariant(); }
    Value& operator=(Value&& other) noexcept {
        std::swap(m_Variant, other.m_Variant);
        return *this;
    }
    ~Value() { VignelClearVariant(&m_Variant); }

    VignelVariant* Address() { return &m_Variant; }

    // What a member's result is documented to be; of another kind it gives an empty text, 0, false.
    template <class T>
    T As() const {
        if constexpr (std::is_void_v<T>)
            return;
        else if constexpr (std::is_same_v<T, bool>)
            return m_Variant.vt == VIGNEL_BOOL && m_Variant.boolVal != 0;
        else if constexpr (std::is_same_v<T, double>)
            return m_Variant.vt == VIGNEL_DATE ? m_Variant.date : 0;
        else if constexpr (std::is_integral_v<T>)
            return static_cast<T>(m_Variant.vt == VIGNEL_I2   ? m_Variant.iVal
                                  : m_Variant.vt == VIGNEL_I4 ? m_Variant.lVal
                                                              : 0);
        else if constexpr (std::is_same_v<T, Items>)
            return Parted(Text());
        else
            return T(Text());
    }

private:
    std::string Text() const {
        size_t nBytes = 0;
        if (m_Variant.vt != VIGNEL_BSTR)
            return {};
        const std::unique_ptr<char, void (*)(void*)> pBytes(VignelToUtf8(m_Variant.bstrVal, &nBytes), std::free);
        if (!pBytes)
            throw std::bad_alloc();
        return {pBytes.get(), nBytes};
    }
    static std::string Joined(const Items& items) {
        std::string joined;
        for (const std::string& item : items)
            (joined += item) += '\0';
        return joined;
    }
    static Items Parted(std::string_view joined) {
        Items items;
        while (!joined.empty()) {
            items.emplace_back(joined.substr(0, joined.find('\0')));
            joined.remove_prefix(std::min(items.back().size() + 1, joined.size()));
        }
        return items;
    }

    VignelVariant m_Variant;
};

// A dispatch interface of an object, by the names of its members. It holds a reference.
class Object {
public:
    Object() = default;
    explicit Object(VignelDispatch* pObject) : m_pObject(pObject) {} // takes the reference over
    Object(Object&& other) noexcept : m_pObject(std::exchange(other.m_pObject, nullptr)) {}
    Object& operator=(Object&& other) noexcept {
        std::swap(m_pObject, other.m_pObject);
        return *this;
    }
    ~Object() {
        if (m_pObject)
            VIGNEL_RELEASE(m_pObject);
    }

    explicit operator bool() const { return m_pObject != nullptr; }
    VignelDispatch* Address() const { return m_pObject; }

    // The object's interface of another id; none when it hasn't any.
    Object Query(VignelGuidRef iid) const {
        void* pFound = nullptr;
        VIGNEL_CALL_OF(m_pObject, QueryInterface, iid, &pFound);
        return Object(static_cast<VignelDispatch*>(pFound));
    }

    // Calls a method. T is its result.
    template <class T = void, class... TArguments>
    T Call(const char* pName, TArguments&&... arguments) const {
        return Invoke<T>(pName, VIGNEL_METHOD, std::forward<TArguments>(arguments)...);
    }
    template <class T>
    T Get(const char* pName) const {
        return Invoke<T>(pName, VIGNEL_GET);
    }
    template <class T>
    T Get(const char* pName, Result& result) const {
        return Invoke<T>(pName, VIGNEL_GET, result);
    }
    template <class TValue>
    void Put(const char* pName, const TValue& value) const {
        Invoke<void>(pName, VIGNEL_PUT, value);
    }
    template <class TValue>
    void Put(const char* pName, const TValue& value, Result& result) const {
        Invoke<void>(pName, VIGNEL_PUT, value, result);
    }

private:
    template <class T, class... TArguments>
    T Invoke(const char* pName, uint16_t flags, TArguments&&... arguments) const {
        Result* pResult = nullptr;
        Value given[sizeof...(arguments) + 1];
        uint32_t nGiven = 0;
        [[maybe_unused]] const auto take = [&](auto& argument) {
            if constexpr (std::is_same_v<std::remove_cv_t<std::remove_reference_t<decltype(argument)>>, Result>)
                pResult = &argument;
            else
                given[nGiven++] = Value(argument);
        };
        (take(arguments), ...);
        VignelVariant variants[sizeof...(arguments) + 1];
        for (uint32_t nAt = 0; nAt < nGiven; ++nAt)
            variants[nAt] = *given[nAt].Address();
        Value returned;
        Result result;
        VignelString message = nullptr;
        result.code = VignelCall(m_pObject, pName, flags, variants, nGiven, returned.Address(), &message);
        if (char* pText = message ? VignelToUtf8(message, nullptr) : nullptr) {
            result.message = pText;
            std::free(pText);
        }
        VignelFreeString(message);
        if (pResult)
            *pResult = result;
        else if (!result)
            throw Error(pName, result);
        return returned.As<T>();
    }

    VignelDispatch* m_pObject = nullptr;
};

#ifndef _WIN32
// The library of a component. It stays loaded; VignelUnload takes it away when all objects have gone.
class Library {
public:
    Library() = default;
    explicit Library(const std::filesystem::path& path) : m_pHandle(VignelLoad(path.c_str())) {
        if (!m_pHandle)
            throw std::runtime_error(dlerror());
    }

    // The registered one.
    static Library Of(const char* pProgId) {
        char path[VIGNEL_PATH_SIZE];
        if (!VignelFindLibrary(pProgId, path, sizeof path))
            throw Error(pProgId, {VIGNEL_E_CLASSNOTREG, std::string(pProgId) + " isn't registered"});
        return Library(std::filesystem::path(path));
    }

    Object Create(const VignelGuid& clsid) const {
        VignelDispatch* pObject = nullptr;
        const VignelResult code = VignelCreate(m_pHandle, &clsid, &pObject);
        if (code < 0)
            throw Error("the component's object", {code, ""});
        return Object(pObject);
    }

    void* Handle() const { return m_pHandle; }

private:
    void* m_pHandle = nullptr;
};
#endif

// The members of VignelServer.Orrelix; docs/hosting.md tells what each does.
class Orrelix : public Object {
public:
    using Path = std::filesystem::path;
    using Text = std::string;

#ifndef _WIN32
    Orrelix() : Orrelix(Library::Of("VignelServer.Orrelix")) {}
    explicit Orrelix(const Library& library) : Object(library.Create(VignelClsidOrrelix)) {}
#endif

    Text GetProgID() const { return Get<Text>("ProgID"); }
    Text GetTitle() const { return Get<Text>("Title"); }
    void SetTitle(const Text& title) const { Put("Title", title); }
    Text GetDescription() const { return Get<Text>("Description"); }
    void SetDescription(const Text& text) const { Put("Description", text); }
    Text GetBitmapFileName() const { return Get<Text>("BitmapFileName"); }
    void SetBitmapFileName(const Text& name) const { Put("BitmapFileName", name); }
    Text GetPreviewPath() const { return Get<Text>("PreviewPath"); }
    void SetPreviewPath(const Text& directory) const { Put("PreviewPath", directory); }
    double GetLastUpdateTime() const { return Get<double>("LastUpdateTime"); }
    void SetLastUpdateTime(double days) const { Put("LastUpdateTime", days); }

    bool ReadConfigFile(const Path& path) const { return Call<bool>("ReadConfigFile", path); }
    bool WriteConfigFile(const Path& path) const { return Call<bool>("WriteConfigFile", path); }
    bool WriteConfigFileEx(const Path& path, bool bForce) const {
        return Call<bool>("WriteConfigFileEx", path, bForce ? 1 : 0);
    }
    bool Config() const { return Call<bool>("Config"); }

    int GetHTMLSegmentNumber() const { return Call<int>("GetHTMLSegmentNumber"); }
    Text GetHTMLPosition(int nIndex) const { return Call<Text>("GetHTMLPosition", nIndex); }
    Text GetHTMLBody(int nPosition, int nMode) const { return Call<Text>("GetHTMLBody", nPosition, nMode); }

    int GetResourceInstance() const { return Call<int>("GetResourceInstance"); }
    int GetResourceNumber() const { return Call<int>("GetResourceNumber"); }
    Text GetResourceName(int nIndex) const { return Call<Text>("GetResourceName", nIndex); }
    Text GetResourceLocalPath(int nIndex) const { return Call<Text>("GetResourceLocalPath", nIndex); }
    Text GetResourceWebPath(int nIndex) const { return Call<Text>("GetResourceWebPath", nIndex); }
    bool SetResourceLocalPath(const Text& path) const { return Call<bool>("SetResourceLocalPath", path); }

    // The interface for hosts that work without dialogs.
    Object Inspector() const { return Query(VignelIidInspector); }
};

} // namespace vignel
