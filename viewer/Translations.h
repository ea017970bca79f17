#ifndef DATALOG_VIEWER_TRANSLATIONS_H
#define DATALOG_VIEWER_TRANSLATIONS_H

#include <QLocale>
#include <QTranslator>

/** The viewer and Qt speak the user's language while this lives, if they know it. */
class Translations
{
public:
    /** @param languages what the user reads, the best first, such as "de-DE". */
    explicit Translations(const QStringList &languages = QLocale::system().uiLanguages());
    ~Translations();

private:
    Q_DISABLE_COPY(Translations)

    bool take(const QString &language);

    QTranslator m_viewer;
    QTranslator m_qt;
};

#endif
