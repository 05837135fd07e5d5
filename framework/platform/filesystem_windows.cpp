// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "platform/windowsapi.h"

#include "platform/filesystem.h"

#include <aclapi.h>
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <string>
#include <vector>

namespace Norvane::Platform {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The byte that stands for the file in locks. Locks forbid reading and writing here, so it lies
/// where no content will ever be.
constexpr DWORD kLockedByteHigh = 0x40000000;

/// Some file systems refuse larger pieces.
constexpr std::int64_t kLargestPiece = 32 * 1024 * 1024;

/// FileRenameInfoEx, which some versions of MinGW's headers keep back.
constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);

class Handle
{
public:
    explicit Handle(HANDLE handle)
        : m_handle(handle)
    { }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    ~Handle()
    {
        if (isOpen())
            ::CloseHandle(m_handle);
    }

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// The system's handle of a descriptor, which stays the descriptor's.
HANDLE systemHandle(int handle)
{
    if (handle >= 0)
        return reinterpret_cast<HANDLE>(
            ::_get_osfhandle(handle)); // The C library allows no others.
    ::SetLastError(ERROR_INVALID_HANDLE);
    return INVALID_HANDLE_VALUE;
}

/// The path in the form that may have more than 260 characters.
std::wstring longPath(const std::filesystem::path &path)
{
    const std::wstring given = path.native();
    if (given.starts_with(LR"(\\?\)") || given.starts_with(LR"(\\.\)"))
        return given;
    std::wstring whole(::GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(::GetFullPathNameW(given.c_str(), DWORD(whole.size()), whole.data(), nullptr));
    if (whole.empty())
        return given; // The call that gets it will fail, and say why.
    // A share's \\server\folder becomes \\?\UNC\server\folder.
    if (whole.starts_with(LR"(\\)"))
        return LR"(\\?\UNC\)" + whole.substr(2);
    return LR"(\\?\)" + whole;
}

HANDLE openPath(const std::filesystem::path &path, DWORD access, DWORD creation, DWORD flags)
{
    return ::CreateFileW(longPath(path).c_str(), access, kShareAll, nullptr, creation, flags,
                         nullptr);
}

std::optional<FileIdentity> identityOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION state = {};
    if (::GetFileInformationByHandle(file, &state) == 0)
        return std::nullopt;
    FileIdentity identity{
        .volume = state.dwVolumeSerialNumber,
        .file = {std::uint64_t(state.nFileIndexHigh) << 32 | state.nFileIndexLow, 0},
        .size = std::int64_t(std::uint64_t(state.nFileSizeHigh) << 32 | state.nFileSizeLow),
        .isRegular = (state.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0
            && ::GetFileType(file) == FILE_TYPE_DISK};
    // Not every file system has the longer ids, and some have no others.
    FILE_ID_INFO id = {};
    if (::GetFileInformationByHandleEx(file, FileIdInfo, &id, sizeof(id)) != 0) {
        identity.volume = id.VolumeSerialNumber;
        static_assert(sizeof(identity.file) == sizeof(id.FileId));
        std::memcpy(identity.file.data(), &id.FileId, sizeof(id.FileId));
    }
    return identity;
}

OVERLAPPED placeOf(std::int64_t at)
{
    OVERLAPPED place = {};
    place.Offset = DWORD(at & 0xFFFFFFFF);
    place.OffsetHigh = DWORD(at >> 32);
    return place;
}

OVERLAPPED lockedByte()
{
    OVERLAPPED place = {};
    place.OffsetHigh = kLockedByteHigh;
    return place;
}

bool isFlushed(const std::filesystem::path &path, DWORD flags)
{
    const Handle file(openPath(path, GENERIC_WRITE, OPEN_EXISTING, flags));
    return file.isOpen() && ::FlushFileBuffers(file.get()) != 0;
}

/// The failure of a system or a file system that does not know what it was asked for.
bool isUnknownRequest(DWORD error)
{
    return error == ERROR_INVALID_PARAMETER || error == ERROR_INVALID_FUNCTION
        || error == ERROR_NOT_SUPPORTED || error == ERROR_CALL_NOT_IMPLEMENTED;
}

/// Gives the open file another name, which the file of that name loses even if it is open.
bool renameOver(HANDLE file, const std::wstring &name)
{
    const std::size_t bytes = name.size() * sizeof(wchar_t);
    std::vector<std::byte> buffer(sizeof(FILE_RENAME_INFO) + bytes);
    auto *const info = new (buffer.data()) FILE_RENAME_INFO{};
    info->Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
    info->FileNameLength = DWORD(bytes);
    std::memcpy(buffer.data() + offsetof(FILE_RENAME_INFO, FileName), name.data(), bytes);
    return ::SetFileInformationByHandle(file, kRenameInfoEx, info, DWORD(buffer.size())) != 0;
}

/// What the system says of a file that someone has opened without sharing it, and sometimes when it
/// does not want to give other reasons.
bool isHeldByOthers(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool replaceOnce(const std::filesystem::path &from, const std::filesystem::path &to)
{
    const Handle file(openPath(from, DELETE | GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL));
    if (!file.isOpen())
        return false;
    // ReplaceFileW() takes two steps, and a power cut between them leaves no file of that name.
    if (renameOver(file.get(), longPath(to)))
        return true;
    if (!isUnknownRequest(::GetLastError()))
        return false;
    // An older system, or a file system that replaces closed files only.
    return ::MoveFileExW(longPath(from).c_str(), longPath(to).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)
        != 0;
}

} // namespace

std::optional<FileIdentity> fileIdentity(int handle)
{
    return identityOf(systemHandle(handle));
}

std::optional<FileIdentity> fileIdentity(const std::filesystem::path &path)
{
    // Without any access: it works on files that others keep for themselves.
    const Handle file(openPath(path, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS));
    return file.isOpen() ? identityOf(file.get()) : std::nullopt;
}

int openFile(const std::filesystem::path &path, Access access, Existence existence)
{
    const bool isWritten = access == Access::ReadWrite;
    const DWORD creation = existence == Existence::Required ? OPEN_EXISTING
        : existence == Existence::Allowed                   ? OPEN_ALWAYS
                                                            : CREATE_NEW;
    const HANDLE file = openPath(path, GENERIC_READ | (isWritten ? GENERIC_WRITE : 0), creation,
                                 FILE_ATTRIBUTE_NORMAL);
    if (file == INVALID_HANDLE_VALUE)
        return -1;
    const int descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(file),
                                             (isWritten ? _O_RDWR : _O_RDONLY) | _O_NOINHERIT);
    if (descriptor < 0) {
        ::CloseHandle(file);
        ::SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    }
    return descriptor;
}

void closeHandle(int handle)
{
    ::_close(handle);
}

bool lockFile(int handle, bool alone, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    const DWORD flags = LOCKFILE_FAIL_IMMEDIATELY | (alone ? LOCKFILE_EXCLUSIVE_LOCK : 0);
    OVERLAPPED place = lockedByte();
    // Without FAIL_IMMEDIATELY the call would wait without a limit.
    for (DWORD pause = 1; ::LockFileEx(systemHandle(handle), flags, 0, 1, 0, &place) == 0;
         pause = std::min<DWORD>(pause * 2, 20)) {
        const DWORD error = ::GetLastError();
        const bool isHeld = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
        if (!isHeld || std::chrono::steady_clock::now() >= deadline)
            return false;
        ::Sleep(pause);
    }
    return true;
}

void unlockFile(int handle)
{
    OVERLAPPED place = lockedByte();
    ::UnlockFileEx(systemHandle(handle), 0, 1, 0, &place);
}

std::int64_t readFileAt(int handle, std::int64_t at, char *to, std::int64_t size)
{
    std::int64_t filled = 0;
    while (filled < size) {
        OVERLAPPED place = placeOf(at + filled);
        const auto piece = DWORD(std::min(size - filled, kLargestPiece));
        DWORD got = 0;
        if (::ReadFile(systemHandle(handle), to + filled, piece, &got, &place) == 0
            && ::GetLastError() != ERROR_HANDLE_EOF) {
            return -1;
        }
        if (got == 0)
            break;
        filled += got;
    }
    return filled;
}

bool writeFileAt(int handle, std::int64_t at, const char *from, std::int64_t size)
{
    for (std::int64_t done = 0; done < size;) {
        OVERLAPPED place = placeOf(at + done);
        const auto piece = DWORD(std::min(size - done, kLargestPiece));
        DWORD written = 0;
        if (::WriteFile(systemHandle(handle), from + done, piece, &written, &place) == 0
            || written == 0) {
            return false;
        }
        done += written;
    }
    return true;
}

bool resizeFile(int handle, std::int64_t size)
{
    FILE_END_OF_FILE_INFO end = {};
    end.EndOfFile.QuadPart = size;
    return ::SetFileInformationByHandle(systemHandle(handle), FileEndOfFileInfo, &end, sizeof(end))
        != 0;
}

void expectUse(char *, std::int64_t)
{
    // Windows gives large pages to nobody without a privilege.
}

bool syncFile(int handle)
{
    return ::FlushFileBuffers(systemHandle(handle)) != 0;
}

bool syncFolderOf(const std::filesystem::path &path)
{
    // NTFS and ReFS write down changes of names in one journal with all others, in order, and
    // flushing the file flushes the journal up to where its name is.
    const bool isFileFlushed = isFlushed(path, FILE_ATTRIBUTE_NORMAL);
    const DWORD error = ::GetLastError();
    // Other file systems want the folder flushed; those with a journal often refuse.
    std::filesystem::path folder = path.parent_path();
    if (folder.empty())
        folder = L".";
    if (isFlushed(folder, FILE_FLAG_BACKUP_SEMANTICS) || isFileFlushed)
        return true;
    ::SetLastError(error);
    return false;
}

void copyPermissions(int from, int to)
{
    // Other handles of the files, since those that we have need not allow it.
    const Handle source(
        ::ReOpenFile(systemHandle(from), READ_CONTROL | FILE_READ_ATTRIBUTES, kShareAll, 0));
    const Handle target(::ReOpenFile(
        systemHandle(to), READ_CONTROL | WRITE_DAC | FILE_WRITE_ATTRIBUTES, kShareAll, 0));
    if (!source.isOpen() || !target.isOpen())
        return;
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetSecurityInfo(source.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                          &list, nullptr, &descriptor)
        == ERROR_SUCCESS) {
        const std::unique_ptr<void, decltype(&::LocalFree)> owner(descriptor, &::LocalFree);
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        ::GetSecurityDescriptorControl(descriptor, &control, &revision);
        // A list that takes no part in what the folder hands down goes on taking none.
        const DWORD inheritance = (control & SE_DACL_PROTECTED) != 0
            ? PROTECTED_DACL_SECURITY_INFORMATION
            : UNPROTECTED_DACL_SECURITY_INFORMATION;
        ::SetSecurityInfo(target.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance,
                          nullptr, nullptr, list, nullptr);
    }
    constexpr DWORD kKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    FILE_BASIC_INFO info = {};
    if (::GetFileInformationByHandleEx(source.get(), FileBasicInfo, &info, sizeof(info)) == 0)
        return;
    const DWORD attributes = info.FileAttributes & kKept;
    info = {}; // A time of 0 stays as it is, and so do attributes of 0.
    info.FileAttributes = attributes;
    ::SetFileInformationByHandle(target.get(), FileBasicInfo, &info, sizeof(info));
}

bool replaceFile(const std::filesystem::path &from, const std::filesystem::path &to)
{
    bool isReplaced = replaceOnce(from, to);
    // Indexers and virus scanners hold a new file for a moment.
    for (DWORD pause = 1; !isReplaced && isHeldByOthers(::GetLastError()) && pause < 1000;
         pause *= 2) {
        ::Sleep(pause);
        isReplaced = replaceOnce(from, to);
    }
    return isReplaced;
}

int lastError()
{
    return int(::GetLastError());
}

} // namespace Norvane::Platform
