#ifndef DATALOG_TESTS_SUPPORT_ORDINARYUSER_H
#define DATALOG_TESTS_SUPPORT_ORDINARYUSER_H

#include <sys/fsuid.h>
#include <unistd.h>

/** Looks at files as somebody without special rights, whoever runs the test. */
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_user(setfsuid(geteuid() == 0 ? 65534 : geteuid()))
    {
    }
    ~OrdinaryUser() { setfsuid(m_user); }

private:
    uid_t m_user;
};

#endif
