// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What both halves of framework/platform promise, said once. It needs no Qt, so that a compiler for
// the other platform can build it, too. `check FOLDER` works in the folder, which is empty.

#include <platform/filesystem.h>
#include <platform/terminal.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

using namespace Norvane::Platform;
using namespace std::chrono_literals;

namespace {

int failures = 0;

#define CHECK(condition) check(condition, #condition, __LINE__)

void check(bool isTrue, const char *condition, int line)
{
    if (isTrue)
        return;
    std::printf("line %d: not true, system error %d: %s\n", line, lastError(), condition);
    ++failures;
}

/// As the store opens its files.
int openFile(const std::filesystem::path &path)
{
    return openFile(path, Access::ReadWrite, Existence::Required);
}

void write(const std::filesystem::path &path, const std::string &text)
{
    std::ofstream(path, std::ios::binary) << text;
}

std::string textOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string textOf(int handle)
{
    std::string text(100, '\0');
    const std::int64_t size = readFileAt(handle, 0, text.data(), std::int64_t(text.size()));
    text.resize(std::size_t(size < 0 ? 0 : size));
    return text;
}

void locks_holdOffOthers(const std::filesystem::path &path)
{
    write(path, "content");
    const int one = openFile(path);
    const int two = openFile(path);
    CHECK(lockFile(one, true, 0ms));
    CHECK(!lockFile(two, true, 5ms));
    CHECK(!lockFile(two, false, 5ms));
    CHECK(textOf(path) == "content"); // Who does not ask is not held off.
    CHECK(textOf(two) == "content");
    unlockFile(one);
    CHECK(lockFile(two, false, 0ms));
    CHECK(lockFile(one, false, 0ms));
    unlockFile(one);
    CHECK(!lockFile(one, true, 5ms));
    closeHandle(two); // A lock ends with its handle.
    CHECK(lockFile(one, true, 0ms));
    closeHandle(one);
    CHECK(!lockFile(-1, true, 0ms));
}

void identities_tellFilesAndStatesApart(const std::filesystem::path &path)
{
    const std::filesystem::path other = path.parent_path() / "other";
    write(path, "a");
    write(other, "a");
    const int handle = openFile(path);
    const auto before = fileIdentity(handle);
    CHECK(before.has_value() && before->size == 1 && before->isRegular);
    CHECK(!fileIdentity(path.parent_path())->isRegular);
    CHECK(before == fileIdentity(path));
    CHECK(!before->isSameFileAs(*fileIdentity(other)));
    write(path, "ab");
    CHECK(fileIdentity(handle)->isSameFileAs(*before));
    CHECK(fileIdentity(handle) != before);
    closeHandle(handle);
    CHECK(!fileIdentity(path.parent_path() / "missing").has_value());
    CHECK(!fileIdentity(-1).has_value());
}

void reading_endsWithTheFile(const std::filesystem::path &path)
{
    write(path, "0123456789");
    const int handle = openFile(path);
    char bytes[20] = {};
    CHECK(readFileAt(handle, 3, bytes, 4) == 4 && std::string(bytes, 4) == "3456");
    CHECK(readFileAt(handle, 7, bytes, 20) == 3 && std::string(bytes, 3) == "789");
    CHECK(readFileAt(handle, 10, bytes, 1) == 0);
    CHECK(readFileAt(handle, 1000, bytes, 1) == 0);
    CHECK(readFileAt(-1, 0, bytes, 1) == -1);
    closeHandle(handle);
}

void opening_makesWhatMayBeMissing(const std::filesystem::path &path)
{
    CHECK(openFile(path, Access::ReadWrite, Existence::Required) == -1);
    CHECK(!std::filesystem::exists(path));
    const int made = openFile(path, Access::ReadWrite, Existence::Refused);
    CHECK(made >= 0);
    CHECK(openFile(path, Access::ReadWrite, Existence::Refused) == -1);
    CHECK(writeFileAt(made, 0, "content", 7));
    const int found = openFile(path, Access::Read, Existence::Allowed);
    CHECK(textOf(found) == "content");
    CHECK(!writeFileAt(found, 0, "x", 1));
    CHECK(!resizeFile(found, 1));
    closeHandle(found);
    closeHandle(made);
    CHECK(openFile(path.parent_path() / "missing" / "file", Access::ReadWrite, Existence::Allowed)
          == -1);
}

void writing_goesWhereItIsSaid(const std::filesystem::path &path)
{
    write(path, "0123456789");
    const int handle = openFile(path);
    CHECK(writeFileAt(handle, 2, "ab", 2) && textOf(handle) == "01ab456789");
    CHECK(writeFileAt(handle, 8, "cdef", 4) && textOf(handle) == "01ab4567cdef");
    CHECK(writeFileAt(handle, 14, "g", 1)
          && textOf(handle) == std::string("01ab4567cdef\0\0g", 15));
    CHECK(writeFileAt(handle, 0, "", 0) && textOf(handle).size() == 15);
    CHECK(resizeFile(handle, 3) && textOf(handle) == "01a");
    CHECK(resizeFile(handle, 5) && textOf(handle) == std::string("01a\0\0", 5));
    std::string large; // Several pieces.
    for (int i = 0; large.size() < 9'000'000; ++i)
        large += std::to_string(i);
    CHECK(writeFileAt(handle, 1, large.data(), std::int64_t(large.size())));
    CHECK(syncFile(handle));
    CHECK(textOf(path) == "0" + large);
    CHECK(!writeFileAt(-1, 0, "x", 1));
    CHECK(!resizeFile(-1, 0));
    closeHandle(handle);
}

void syncing_works(const std::filesystem::path &path)
{
    write(path, "content");
    const int handle = openFile(path);
    CHECK(syncFile(handle));
    CHECK(syncFolderOf(path));
    CHECK(!syncFile(-1));
    CHECK(!syncFolderOf(path.parent_path() / "missing" / "file"));
    closeHandle(handle);
}

/// `isAnyOpen`: as the store does it; some file systems replace closed files only.
void replacing_leavesOneFile(const std::filesystem::path &path, bool isAnyOpen)
{
    const std::filesystem::path fresh = path.parent_path() / "fresh";
    write(path, "old");
    write(fresh, "new");
    const int old = openFile(path);
    const int handle = openFile(fresh);
    copyPermissions(old, handle);
    if (!isAnyOpen) {
        closeHandle(old);
        closeHandle(handle);
    }
    CHECK(replaceFile(fresh, path));
    CHECK(textOf(path) == "new");
    CHECK(!std::filesystem::exists(fresh));
    if (isAnyOpen) {
        CHECK(textOf(old) == "old");
        CHECK(textOf(handle) == "new");
        CHECK(fileIdentity(handle)->isSameFileAs(*fileIdentity(path)));
        closeHandle(old);
        closeHandle(handle);
    }
    CHECK(!replaceFile(fresh, path));
    CHECK(textOf(path) == "new");
}

/// Longer than the 260 characters that Windows takes in an ordinary path.
void longPaths_work(const std::filesystem::path &folder)
{
    const std::filesystem::path place =
        std::filesystem::absolute(folder) / std::string(120, 'a') / std::string(120, 'b');
#ifdef _WIN32
    const std::filesystem::path creatable(LR"(\\?\)" + std::filesystem::path(place).native());
#else
    const std::filesystem::path &creatable = place;
#endif
    std::filesystem::create_directories(creatable);
    write(creatable / "file", "far away");
    const int handle = openFile(place / "file");
    CHECK(textOf(handle) == "far away");
    closeHandle(handle);
    CHECK(fileIdentity(place / "file").has_value());
    CHECK(syncFolderOf(place / "file"));
}

/// The standard output of a test is none.
void terminals_areToldFromFiles()
{
    CHECK(!isTerminal(stdout));
    CHECK(terminalColumns(stdout) == 0);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    prepareStandardStreams();
    const std::filesystem::path folder = argv[1];
    const bool isAnyOpen = argc < 3 || std::string(argv[2]) != "--closed";
    locks_holdOffOthers(folder / "locks");
    identities_tellFilesAndStatesApart(folder / "identities");
    reading_endsWithTheFile(folder / "reading");
    opening_makesWhatMayBeMissing(folder / "opening");
    writing_goesWhereItIsSaid(folder / "writing");
    syncing_works(folder / "syncing");
    replacing_leavesOneFile(folder / "replacing", isAnyOpen);
    longPaths_work(folder);
    terminals_areToldFromFiles();
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
