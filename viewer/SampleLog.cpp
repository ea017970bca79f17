#include "viewer/SampleLog.h"

#include <QFile>

namespace
{

const char kFileName[] = "climate-chamber.log";

} // namespace

SampleLog::SampleLog()
{
    Q_INIT_RESOURCE(viewer);
    const QString name = QLatin1String(kFileName);
    const QString path = m_directory.filePath(name);
    if (m_directory.isValid() && QFile::copy(QStringLiteral(":/viewer/logs/") + name, path))
        m_path = path;
}
