#ifndef DATALOG_GRAPHDEF_LOGDATADEFINITIONREADER_H
#define DATALOG_GRAPHDEF_LOGDATADEFINITIONREADER_H

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class LogDataSetFilter;
class QXmlStreamReader;

/**
 * Reads a graph definition, in the XML that LogDataDefinitionWriter describes, into plain lists
 * that the caller applies to a data source.
 *
 * Elements count wherever they stand, under whatever root; unknown ones are passed over. The
 * operator of an "Expression" is expected as its position in LogDataSetFilter::operators, 0 to 5,
 * so one that the writer wrote as text reads as 0, which is ">".
 *
 * A document that would take the XML reader minutes, or more memory than there is, is refused like
 * one that is not well-formed; see GuardedXmlDevice.
 *
 * Carriage returns are left out of the text, unless its encoding is one of two bytes or four.
 *
 * Nothing is cleared before a read: another file adds to the lists, and an error stays told. After
 * an error the lists hold what came before it.
 */
class LogDataDefinitionReader : public QObject
{
    Q_OBJECT

public:
    explicit LogDataDefinitionReader(QObject *parent = nullptr);

    /**
     * False when the file can't be opened, as none but regular ones can, or is no well-formed XML;
     * see errorMessage().
     */
    bool readGraphDefinition(const QString &path);
    /** Cause of the last failure, empty when there was none. */
    QString errorMessage() const { return m_errorMessage; }

    /** The horizontal variable: the last one named, empty when none is. */
    QString xVar() const { return m_xVar; }
    QStringList yLeftVars() const { return m_yLeftVars; }
    QStringList yRightVars() const { return m_yRightVars; }
    /** The caller's to delete: this object never does. */
    QList<LogDataSetFilter *> criteria() const { return m_criteria; }

    // Each takes a reader that stands on a start element.
    void parseStartElement(QXmlStreamReader &reader);
    void parseGraphDefinition(QXmlStreamReader &reader);
    void parseBottomAxis(QXmlStreamReader &reader);
    void parseLeftAxis(QXmlStreamReader &reader);
    void parseRightAxis(QXmlStreamReader &reader);
    void parseCriteria(QXmlStreamReader &reader);
    void parseCurveAttribute(QXmlStreamReader &reader);

private:
    QString m_errorMessage;
    QString m_xVar;
    QStringList m_yLeftVars;
    QStringList m_yRightVars;
    QList<LogDataSetFilter *> m_criteria;
};

#endif
