#ifndef DATALOG_TESTS_SUPPORT_FULLDISK_H
#define DATALOG_TESTS_SUPPORT_FULLDISK_H

#include <csignal>
#include <sys/resource.h>

/** Lets no file of this process grow beyond some bytes, as a full disk would. */
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit limit = m_limit;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_limit;
};

#endif
