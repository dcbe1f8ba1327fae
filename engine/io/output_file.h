#pragma once
// A binary output file whose every write, flush and close is checked. Writers
// build on it so that a full disk or a vanished folder turns into an error
// value, and so that a failed run can take back the file it created.
//
// Written bytes stay in memory until the writer commits them (sync, patch or
// close): the file in the kernel's hands then only ever changes from one
// state the writer chose to the next, so a process killed between commits
// leaves the last committed file, with no half-written tail after it.

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace zuvo::io {

class OutputFile {
public:
    OutputFile() = default;
    ~OutputFile(); // an unfinished file is closed and removed
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    bool open(const std::string& path, std::string* error);
    bool write(const void* data, std::size_t size, std::string* error);
    // Bytes written but not yet committed.
    std::size_t pendingBytes() const { return pending_.size(); }
    bool writeU8(std::uint8_t v, std::string* error) { return write(&v, 1, error); }
    bool writeLE(std::uint64_t v, int bytes, std::string* error);
    bool writeBE(std::uint64_t v, int bytes, std::string* error);
    // Overwrites bytes at `offset` and returns to the end of the file.
    bool patchLE(std::uint64_t offset, std::uint64_t v, int bytes, std::string* error);
    bool patchBE(std::uint64_t offset, std::uint64_t v, int bytes, std::string* error);
    std::uint64_t position() const { return written_; }
    // Hands the pending bytes to the kernel; with `toDisk` also waits until
    // they are on the disk, so that sizes patched after it never promise
    // more than is there even after a power cut.
    bool sync(std::string* error, bool toDisk = true);
    // Flushes and closes; the file stays. False when any byte did not reach it.
    bool close(std::string* error);
    // Closes and deletes what was written (failure path).
    void discard();
    const std::string& path() const { return path_; }
    bool isOpen() const { return file_ != nullptr; }

private:
    bool fail(std::string* error, const char* what);
    bool patch(std::uint64_t offset, const std::uint8_t* bytes, int n, std::string* error);
    bool commitPending(std::string* error);

    std::FILE* file_ = nullptr;
    std::string path_;
    std::uint64_t written_ = 0;
    std::vector<std::uint8_t> pending_;
    bool removable_ = false;
};

} // namespace zuvo::io
