// Whole files in and out. A file is opened, used and closed in one call, and one that is replaced
// is either the old or the new one, whatever goes wrong. Failures are faults: "File not found",
// "Path/File access error", "Disk full" and "File too large".
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tessarel {

// Replaces the file by one with these bytes, or makes it. On a fault the old file stands as it was.
// Only ordinary files that may be written to are replaced; a link stays and its target changes.
void WriteFileAtomically(const std::string& path, std::string_view bytes);

// The same for a file that is too long to hold: `write` hands its bytes to the sink, piece by
// piece. A fault that it raises leaves the old file too.
using ByteSink = std::function<void(std::string_view)>;
void WriteFileAtomically(const std::string& path,
                         const std::function<void(const ByteSink&)>& write);

// The bytes of an ordinary file. A file of more than `maxBytes` raises the file access fault.
std::string ReadWholeFile(const std::string& path, size_t maxBytes);

// Hands the bytes of an ordinary file on in blocks, until `take` returns false or the file ends.
void ReadFileInBlocks(const std::string& path, const std::function<bool(std::string_view)>& take);

// Whether an ordinary file of this name is there.
bool FileExists(const std::string& path);

// When the file was last written to, in the form of DateTimeText; empty when it is not there.
std::string LastModifiedText(const std::string& path);

void DeleteFileIfPresent(const std::string& path);

}  // namespace tessarel
