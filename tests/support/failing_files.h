// The system's files, of which one call fails.
#pragma once

#include "platform/file_system.h"
#include "platform/files.h"

#include <string>
#include <utility>

namespace orrelix {

// Takes the place of the system's for as long as it lives. The nth call that can fail does: with the error, or,
// without one, by moving fewer bytes than it was asked to: half of those to be written, none of those to be read.
class CFailingFiles final : public CFileSystem {
public:
    CFailingFiles(int nCall, std::error_code error) : m_nCall(nCall), m_Error(error) { SetFileSystem(this); }
    ~CFailingFiles() { SetFileSystem(nullptr); }
    CFailingFiles(const CFailingFiles&) = delete;
    CFailingFiles& operator=(const CFailingFiles&) = delete;

    // The call that failed; empty when there were fewer.
    const std::string& GetFailed() const { return m_Failed; }

    std::error_code GetKind(const std::string& path, FileKind& kind) override {
        return Try("look", [&] { return m_System.GetKind(path, kind); });
    }
    std::error_code List(const std::string& directory,
                         const std::function<void(const char*)>& visit) override {
        return Try("list", [&] { return m_System.List(directory, visit); });
    }
    std::error_code OpenToRead(const std::string& path, CSystemFilePtr& pFile,
                               std::uintmax_t& nSize) override {
        return Opened(Try("open", [&] { return m_System.OpenToRead(path, pFile, nSize); }), pFile);
    }
    std::error_code CreateFor(const std::string& replaced, const std::string& path,
                              CSystemFilePtr& pFile) override {
        return Opened(Try("create", [&] { return m_System.CreateFor(replaced, path, pFile); }), pFile);
    }
    std::error_code Rename(const std::string& from, const std::string& to) override {
        return Try("rename", [&] { return m_System.Rename(from, to); });
    }
    void Remove(const std::string& path) override { m_System.Remove(path); }
    void RemoveAbandoned(const std::string& path, int nProcess) override {
        m_System.RemoveAbandoned(path, nProcess);
    }

private:
    class CFile final : public CSystemFile {
    public:
        CFile(CFailingFiles& files, CSystemFilePtr pFile) : m_Files(files), m_pFile(std::move(pFile)) {}

        std::error_code Read(char* pBuffer, size_t nSize, size_t& nRead) override {
            const auto read = [&](size_t nMost) { return m_pFile->Read(pBuffer, nMost, nRead); };
            return m_Files.Try(
                "read", [&] { return read(nSize); }, [&] { return read(0); });
        }
        std::error_code Write(std::string_view bytes, size_t& nWritten) override {
            const auto write = [&](size_t nMost) { return m_pFile->Write(bytes.substr(0, nMost), nWritten); };
            return m_Files.Try(
                "write", [&] { return write(bytes.size()); }, [&] { return write(bytes.size() / 2); });
        }
        // Nobody waits for the disk.
        std::error_code Sync() override {
            return m_Files.Try("sync", [] { return std::error_code(); });
        }
        std::error_code Close() override {
            return m_Files.Try("close", [&] { return m_pFile->Close(); });
        }

    private:
        CFailingFiles& m_Files;
        CSystemFilePtr m_pFile;
    };

    template <class TCall>
    std::error_code Try(const char* pName, TCall call) {
        return Try(pName, call, call);
    }
    template <class TCall, class TShort>
    std::error_code Try(const char* pName, TCall call, TShort moveFewer) {
        if (++m_nCalls != m_nCall)
            return call();
        m_Failed = pName;
        return m_Error ? m_Error : moveFewer();
    }
    std::error_code Opened(std::error_code error, CSystemFilePtr& pFile) {
        if (pFile)
            pFile = std::make_unique<CFile>(*this, std::move(pFile));
        return error;
    }

    CFileSystem& m_System = GetSystemFiles();
    int m_nCall;
    int m_nCalls = 0;
    std::error_code m_Error;
    std::string m_Failed;
};

} // namespace orrelix
