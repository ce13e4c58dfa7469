#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it exists, this process has less of a resource, such as RLIMIT_FSIZE, the size of a file.
class ResourceLimit {
public:
    ResourceLimit(__rlimit_resource resource, rlim_t most) : m_resource(resource) {
        signal(SIGXFSZ, SIG_IGN); // the call fails instead
        getrlimit(resource, &m_before);
        const rlimit limit{most, m_before.rlim_max};
        setrlimit(resource, &limit);
    }
    ~ResourceLimit() { setrlimit(m_resource, &m_before); }
    ResourceLimit(const ResourceLimit&) = delete;
    ResourceLimit& operator=(const ResourceLimit&) = delete;

private:
    __rlimit_resource m_resource;
    rlimit m_before{};
};
