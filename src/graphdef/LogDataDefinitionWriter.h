#ifndef DATALOG_GRAPHDEF_LOGDATADEFINITIONWRITER_H
#define DATALOG_GRAPHDEF_LOGDATADEFINITIONWRITER_H

#include <QObject>
#include <QString>

class LogDataSourceItem;
class QStandardItem;
class QXmlStreamWriter;

/**
 * Writes which variables a data source has checked on each axis, and its criteria, as an XML file:
 *
 * @code{.xml}
 * <GraphDefinition version="1.0" instrument="RV-3140">
 *     <BottomAxis name="Time"/>
 *     <LeftAxis>
 *         <LeftVar name="CO2"/>
 *     </LeftAxis>
 *     <RightAxis/>
 *     <Criteria>
 *         <Expression name="Tair" op="&gt;=" value="25.5"/>
 *     </Criteria>
 * </GraphDefinition>
 * @endcode
 *
 * Not all of it comes back through LogDataDefinitionReader. Operators are written as text, which
 * that reads as ">"; a value has six digits; whether a criterion is active is not written. Several
 * horizontal variables make a file that is no well-formed XML. Characters that XML has no place
 * for, such as control characters, are left out of names.
 *
 * The handlers of single elements write to a document that startGraphDefinition() has begun. Their
 * source must not be null.
 */
class LogDataDefinitionWriter : public QObject
{
    Q_OBJECT

public:
    explicit LogDataDefinitionWriter(QObject *parent = nullptr);

    /** False for a null source only: a file that can't be written is not noticed. */
    bool writeDataSource(LogDataSourceItem *source, const QString &path);
    /**
     * Replaces the file at @p path as ReplacedFile does: one that can't be written stays as it was.
     * Anything but a regular file there is left alone.
     */
    void startGraphDefinition(LogDataSourceItem *source, const QString &path);

    void writeBottomAxis(QXmlStreamWriter &writer, LogDataSourceItem *source);
    void writeLeftAxis(QXmlStreamWriter &writer, LogDataSourceItem *source);
    void writeRightAxis(QXmlStreamWriter &writer, LogDataSourceItem *source);
    void writeLeftVar(QXmlStreamWriter &writer, LogDataSourceItem *source, QStandardItem *item);
    void writeRightVar(QXmlStreamWriter &writer, LogDataSourceItem *source, QStandardItem *item);
    void writeCriteria(QXmlStreamWriter &writer, LogDataSourceItem *source);
    /** A placeholder for a later version of the format; in no file yet. */
    void writeCurveAttribute(QXmlStreamWriter &writer, LogDataSourceItem *source);

    /** Always empty. */
    QString errorMessage() const { return m_errorMessage; }

private:
    QString m_errorMessage;
};

#endif
