#include "viewer/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace
{

/** What the texts are written in. */
bool isOriginal(const QString &language)
{
    return language == QLatin1String("en") || language == QLatin1String("C");
}

} // namespace

/** The macro wants to be outside of all namespaces. */
static void initResources()
{
    Q_INIT_RESOURCE(translations);
}

Translations::Translations(const QStringList &languages)
{
    ::initResources();
    for (const QString &name : languages) {
        const QString language = name.section(QLatin1Char('-'), 0, 0);
        if (isOriginal(language) || take(language))
            return;
    }
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&m_viewer);
    QCoreApplication::removeTranslator(&m_qt);
}

bool Translations::take(const QString &language)
{
    if (!m_viewer.load(QStringLiteral(":/viewer/translations/datalog-viewer_") + language))
        return false;
    QCoreApplication::installTranslator(&m_viewer);
    // Qt's own are a package that may not be there.
    if (m_qt.load(QStringLiteral("qtbase_") + language,
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    return true;
}
