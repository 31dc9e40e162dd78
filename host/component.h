// The component as this program has it: found, loaded and called as any other host does it.
#pragma once

#include "include/orrelix.hpp"
#include "platform/string.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

inline constexpr char kProgID[] = "VignelServer.Orrelix";

// The library that the program works with: the registered one, or else the one that was built or installed with the
// program. Throws std::runtime_error when there is none that can be loaded.
const vignel::Library& GetComponent();

// Where it lies beside the program, registered or not. Empty when it doesn't.
std::filesystem::path FindComponentBesideProgram();

// A new object of the component. Its texts are the bytes of the code page in force, as files have them. A call that
// the component refuses throws vignel::Error.
class CEffectObject : public vignel::Orrelix {
public:
    CEffectObject();

    // A member of the second interface. T is its result.
    template <class T = void, class... TArguments>
    T Ask(const char* pName, TArguments&&... arguments) const {
        return m_Inspector.Call<T>(pName, std::forward<TArguments>(arguments)...);
    }

    CString GetEffect() const { return m_Inspector.Get<std::string>("Effect"); }
    void SetEffect(const std::string& name) const { m_Inspector.Put("Effect", name); }
    void SetEffect(const std::string& name, vignel::Result& result) const {
        m_Inspector.Put("Effect", name, result);
    }
    // What the component says of an effect.
    std::string GetDescriptionOf(const std::string& effect) const;
    // The component's own folder of scripts, as the component spells paths, with a backslash at its end.
    CString GetScriptFolder() const;

private:
    vignel::Object m_Inspector;
};

// Reads a file into the object. Throws CFileError when it can't be read.
void ReadConfig(const std::filesystem::path& path, const CEffectObject& effect);

// The same, and throws CFileError when no effect comes from the file.
void OpenEffect(const std::filesystem::path& path, const CEffectObject& effect);

} // namespace orrelix
