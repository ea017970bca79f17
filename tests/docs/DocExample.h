#ifndef DATALOG_TESTS_DOCS_DOCEXAMPLE_H
#define DATALOG_TESTS_DOCS_DOCEXAMPLE_H

#include <QList>
#include <QString>
#include <QStringList>

/**
 * An example of the documentation: a block of QML, which says in comments, "// prints: text", what
 * it prints.
 */
struct DocExample {
    QString script;
    int line; ///< of its file, that the block starts at

    /** What it says that it prints, line by line. */
    QStringList printed() const;

    /** All examples of the page at @p path. */
    static QList<DocExample> ofPage(const QString &path);
};

#endif
