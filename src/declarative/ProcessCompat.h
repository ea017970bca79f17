#ifndef DATALOG_DECLARATIVE_PROCESSCOMPAT_H
#define DATALOG_DECLARATIVE_PROCESSCOMPAT_H

// What Qt 4 and Qt 5 do differently about processes.

#include <QProcess>

namespace Compat
{

/**
 * Whether @p process counts as started though the system had none to give. Qt 5 then takes -1 for
 * its number, and to kill that, as the destructor does, is to kill all that the user may kill.
 */
inline bool isPhantom(const QProcess &process)
{
#if QT_VERSION < 0x050000
    Q_UNUSED(process)
    return false;
#else
    return process.state() != QProcess::NotRunning && process.processId() < 0;
#endif
}

} // namespace Compat

#endif
