#ifndef DATALOG_VIEWER_COMMANDLINE_H
#define DATALOG_VIEWER_COMMANDLINE_H

#include "viewer/ViewerOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

/**
 * Reads the viewer's command line. It needs no application object, for what it reads decides which
 * kind of application there will be.
 */
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    /** Reads @p arguments, the program's name first; false with an errorText() for wrong usage. */
    bool parse(const QStringList &arguments);
    const ViewerOptions &options() const { return m_options; }
    QString errorText() const { return m_errorText; }
    /** All options explained; needs an application object. */
    QString helpText() const;

private:
    typedef bool (CommandLine::*Reader)(const QString &value);

    void addOption(const char *name, const QString &description, const char *valueName,
                   Reader reader);
    bool readOptions();
    bool readFile();
    bool fail(const QString &text);
    QString unknownOptionText() const;

    bool readDataSet(const QString &value);
    bool readX(const QString &value);
    bool readLeft(const QString &value);
    bool readRight(const QString &value);
    bool readCriterion(const QString &value);
    bool readRange(const QString &value);
    bool readEvery(const QString &value);
    bool readStyle(const QString &value);
    bool readDefinition(const QString &value);
    bool readSaveDefinition(const QString &value);
    bool readExport(const QString &value);
    bool readSize(const QString &value);

    struct Entry {
        QString name;
        Reader reader;
    };

    QCommandLineParser m_parser;
    QList<Entry> m_entries;
    ViewerOptions m_options;
    QString m_errorText;
};

#endif
