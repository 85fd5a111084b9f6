#include "master/OpenFiles.h"

#ifdef _WIN32
#include <limits>
#else
#include <sys/resource.h>
#endif

namespace phial::master
{

std::size_t allowManyOpenFiles()
{
#ifdef _WIN32
    return std::numeric_limits<std::size_t>::max(); // connections are no files there
#else
    rlimit files{};
    getrlimit(RLIMIT_NOFILE, &files);
    files.rlim_cur = files.rlim_max;
    setrlimit(RLIMIT_NOFILE, &files);
    getrlimit(RLIMIT_NOFILE, &files);
    return files.rlim_cur;
#endif
}

} // namespace phial::master
