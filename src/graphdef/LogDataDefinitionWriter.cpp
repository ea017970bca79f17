#include "graphdef/LogDataDefinitionWriter.h"

#include "datasource/LogDataSourceItem.h"
#include "parsing/ReplacedFile.h"

#include <QBuffer>
#include <QList>
#include <QXmlStreamWriter>

namespace
{

const char kName[] = "name";

QList<QStandardItem *> checkedItems(const QStandardItemModel *model)
{
    QList<QStandardItem *> checked;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStandardItem *item = model->item(row);
        if (item && item->data(Qt::CheckStateRole).toInt() == Qt::Checked)
            checked.append(item);
    }
    return checked;
}

void startElement(QXmlStreamWriter &writer, const char *name)
{
    writer.writeStartElement(QLatin1String(name));
}

/** Whether XML has a place for the character at @p i, by itself or as half of a pair. */
bool isXmlCharacter(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    const ushort code = c.unicode();
    return code == '\t' || code == '\n' || code == '\r' || (code >= 0x20 && code < 0xfffe);
}

/** The stream writer of each engine does something else with the others, none of it of use. */
QString xmlText(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (isXmlCharacter(text, i))
            kept.append(text.at(i));
    }
    return kept;
}

void writeAttribute(QXmlStreamWriter &writer, const char *name, const QString &value)
{
    writer.writeAttribute(QLatin1String(name), xmlText(value));
}

void writeNamedElement(QXmlStreamWriter &writer, const char *element, const QString &name)
{
    startElement(writer, element);
    writeAttribute(writer, kName, name);
    writer.writeEndElement();
}

void writeCriterion(QXmlStreamWriter &writer, const LogDataSetFilter *criterion)
{
    if (!criterion)
        return;
    writeAttribute(writer, kName, criterion->variable());
    writeAttribute(writer, "op", criterion->operatorText());
    writeAttribute(writer, "value", QString::number(double(criterion->value())));
}

} // namespace

LogDataDefinitionWriter::LogDataDefinitionWriter(QObject *parent)
    : QObject(parent)
{
}

bool LogDataDefinitionWriter::writeDataSource(LogDataSourceItem *source, const QString &path)
{
    if (!source)
        return false;
    startGraphDefinition(source, path);
    return true;
}

void LogDataDefinitionWriter::startGraphDefinition(LogDataSourceItem *source, const QString &path)
{
    if (!source)
        return;
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    startElement(writer, "GraphDefinition");
    writeAttribute(writer, "version", QLatin1String("1.0"));
    writeAttribute(writer, "instrument", QLatin1String("RV-3140"));
    writeBottomAxis(writer, source);
    writeLeftAxis(writer, source);
    writeRightAxis(writer, source);
    writeCriteria(writer, source);
    writer.writeEndElement();
    writer.writeEndDocument();
    ReplacedFile::write(path, document.data());
}

/** Each checked variable is a "name" of the one element, however many there are. */
void LogDataDefinitionWriter::writeBottomAxis(QXmlStreamWriter &writer, LogDataSourceItem *source)
{
    startElement(writer, "BottomAxis");
    foreach (const QStandardItem *item, checkedItems(source->xVariableModel()))
        writeAttribute(writer, kName, item->text());
    writer.writeEndElement();
}

void LogDataDefinitionWriter::writeLeftAxis(QXmlStreamWriter &writer, LogDataSourceItem *source)
{
    startElement(writer, "LeftAxis");
    foreach (QStandardItem *item, checkedItems(source->yVariableModel()))
        writeLeftVar(writer, source, item);
    writer.writeEndElement();
}

void LogDataDefinitionWriter::writeRightAxis(QXmlStreamWriter &writer, LogDataSourceItem *source)
{
    startElement(writer, "RightAxis");
    foreach (QStandardItem *item, checkedItems(source->zVariableModel()))
        writeRightVar(writer, source, item);
    writer.writeEndElement();
}

void LogDataDefinitionWriter::writeLeftVar(QXmlStreamWriter &writer, LogDataSourceItem *,
                                           QStandardItem *item)
{
    writeNamedElement(writer, "LeftVar", item->text());
}

void LogDataDefinitionWriter::writeRightVar(QXmlStreamWriter &writer, LogDataSourceItem *,
                                            QStandardItem *item)
{
    writeNamedElement(writer, "RightVar", item->text());
}

void LogDataDefinitionWriter::writeCriteria(QXmlStreamWriter &writer, LogDataSourceItem *source)
{
    const QStandardItemModel *model = source->activeFilterModel();
    startElement(writer, "Criteria");
    for (int row = 0; row < model->rowCount(); ++row) {
        const QStandardItem *item = model->item(row);
        if (!item)
            continue;
        startElement(writer, "Expression");
        const QVariant stored = item->data();
        // A row that holds no criterion at all leaves its element open, and what follows nests.
        if (!stored.canConvert<LogDataSetFilter *>())
            continue;
        writeCriterion(writer, stored.value<LogDataSetFilter *>());
        writer.writeEndElement();
    }
    writer.writeEndElement();
}

void LogDataDefinitionWriter::writeCurveAttribute(QXmlStreamWriter &writer, LogDataSourceItem *)
{
    writeNamedElement(writer, "CurveAttribute", QLatin1String("TODO"));
}
