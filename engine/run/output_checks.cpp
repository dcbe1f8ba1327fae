#include "run/output_checks.h"

#include <climits>
#include <cstdlib>
#include <sys/stat.h>

namespace zuvo::run {

namespace {
std::string folderOf(const std::string& path)
{
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    if (slash == 0)
        return "/";
    return path.substr(0, slash);
}

std::string canonical(const std::string& path)
{
    char buf[PATH_MAX];
    if (::realpath(path.c_str(), buf))
        return buf;
    // Not there yet: canonical folder plus the name.
    const std::string folder = folderOf(path);
    const auto slash = path.find_last_of('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    if (::realpath(folder.c_str(), buf))
        return std::string(buf) + "/" + name;
    return path;
}
} // namespace

bool sameFile(const std::string& a, const std::string& b)
{
    struct stat sa {}, sb {};
    if (::stat(a.c_str(), &sa) == 0 && ::stat(b.c_str(), &sb) == 0)
        return sa.st_dev == sb.st_dev && sa.st_ino == sb.st_ino;
    return canonical(a) == canonical(b);
}

std::string logFileClash(const std::string& logFile, const std::vector<std::string>& inputs,
                         const std::string& output)
{
    if (logFile.empty())
        return {};
    for (const auto& in : inputs)
        if (!in.empty() && sameFile(logFile, in))
            return in;
    if (!output.empty() && sameFile(logFile, output))
        return output;
    return {};
}

bool outputFolderExists(const std::string& output, std::string* error)
{
    const std::string folder = folderOf(output);
    struct stat st {};
    if (::stat(folder.c_str(), &st) != 0 || !S_ISDIR(st.st_mode)) {
        if (error)
            *error = "the output folder does not exist: " + folder;
        return false;
    }
    return true;
}

} // namespace zuvo::run
