#pragma once

#include <string>

/// Files that are the user's alone, in a folder that is. Every failure is told by the system's words for it.
namespace horvanta {

/// What was found where a file is expected.
struct FileRead {
    std::string text;
    std::string failure;  ///< Why it can't be read; empty if it was, or if there is none.
    bool isThere = false;
};

/// Reads a whole file. What is not a file, as a folder, a pipe or a device, can't be read, nor what is larger than a
/// mebibyte. Takes away what rights others have to the file.
FileRead ReadFile(const std::string& path);

/// Puts a text in the place of a file in one step, once it is on the disk under another name. Whatever fails, the old
/// file stays. With `kept` the old file is kept under that name, in place of what had it. Returns why it failed; empty
/// if it did not.
std::string ReplaceFile(const std::string& path, const std::string& text, const std::string& kept = "");

/// Gives a file another name, in place of what had it. Returns why that failed; empty if it did not.
std::string MoveFile(const std::string& path, const std::string& other);

/// Makes an empty file if there is none.
void TouchFile(const std::string& path);

/// Makes a folder with those above it, or takes others' rights to it away.
void MakeFolder(const std::string& path);

/// The file that a link stands for; the path itself where there is no link.
std::string TargetOf(const std::string& path);

/// True if there is a file, rather than something else or nothing.
bool isFile(const std::string& path);

}  // namespace horvanta
