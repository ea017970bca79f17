#include "MemoryFile.h"

#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile(const QByteArray &bytes)
    : m_descriptor(memfd_create("datalog", MFD_CLOEXEC))
{
    if (m_descriptor < 0
        || write(m_descriptor, bytes.constData(), size_t(bytes.size())) != bytes.size())
        std::abort();
}

MemoryFile::~MemoryFile()
{
    close(m_descriptor);
}

QString MemoryFile::path() const
{
    return QString::fromLatin1("/proc/self/fd/%1").arg(m_descriptor);
}
