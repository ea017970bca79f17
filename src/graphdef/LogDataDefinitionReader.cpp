#include "graphdef/LogDataDefinitionReader.h"

#include "filters/LogDataSetFilter.h"
#include "graphdef/GuardedXmlDevice.h"
#include "parsing/RegularFile.h"

#include <QUrl>
#include <QXmlStreamReader>

namespace
{

typedef void (LogDataDefinitionReader::*ElementHandler)(QXmlStreamReader &reader);

struct Element {
    const char *name;
    ElementHandler handler;
};

const Element kElements[] = {
    {"GraphDefinition", &LogDataDefinitionReader::parseGraphDefinition},
    {"BottomAxis", &LogDataDefinitionReader::parseBottomAxis},
    {"LeftVar", &LogDataDefinitionReader::parseLeftAxis},
    {"RightVar", &LogDataDefinitionReader::parseRightAxis},
    {"Expression", &LogDataDefinitionReader::parseCriteria},
    {"CurveAttribute", &LogDataDefinitionReader::parseCurveAttribute},
};
const int kElementCount = int(sizeof(kElements) / sizeof(kElements[0]));

const QLatin1String kName("name");
const QLatin1String kOperator("op");
const QLatin1String kValue("value");

/** A number that may be percent-encoded; 0 for any other text. */
int operatorIndex(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toLocal8Bit()).toInt();
}

/** Whether the text that starts so has characters of more than a byte each. */
bool isWide(const QByteArray &start)
{
    return start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff") || start.contains('\0');
}

} // namespace

LogDataDefinitionReader::LogDataDefinitionReader(QObject *parent)
    : QObject(parent)
{
}

bool LogDataDefinitionReader::readGraphDefinition(const QString &path)
{
    RegularFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        m_errorMessage = QString::fromLatin1("Failed to open file at path %1").arg(path);
        return false;
    }
    // Text mode leaves out the bytes of carriage returns, which are also halves of other characters
    // where those are wide, and would shift all that follows.
    file.setTextModeEnabled(!isWide(file.peek(4)));
    GuardedXmlDevice device(&file);
    QXmlStreamReader reader(&device);
    while (!reader.atEnd()) {
        reader.readNext();
        device.check(reader);
        if (reader.isStartElement())
            parseStartElement(reader);
    }
    if (!reader.hasError())
        return true;
    m_errorMessage = reader.errorString();
    return false;
}

void LogDataDefinitionReader::parseStartElement(QXmlStreamReader &reader)
{
    for (int i = 0; i < kElementCount; ++i) {
        if (reader.name() == QLatin1String(kElements[i].name)) {
            (this->*kElements[i].handler)(reader);
            return;
        }
    }
}

/** Any version of any instrument is read. */
void LogDataDefinitionReader::parseGraphDefinition(QXmlStreamReader &) { }

void LogDataDefinitionReader::parseBottomAxis(QXmlStreamReader &reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (attributes.hasAttribute(kName))
        m_xVar = attributes.value(kName).toString();
}

void LogDataDefinitionReader::parseLeftAxis(QXmlStreamReader &reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (attributes.hasAttribute(kName))
        m_yLeftVars.append(attributes.value(kName).toString());
}

void LogDataDefinitionReader::parseRightAxis(QXmlStreamReader &reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (attributes.hasAttribute(kName))
        m_yRightVars.append(attributes.value(kName).toString());
}

void LogDataDefinitionReader::parseCriteria(QXmlStreamReader &reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    if (!attributes.hasAttribute(kName) || !attributes.hasAttribute(kOperator)
        || !attributes.hasAttribute(kValue))
        return;
    LogDataSetFilter::Builder builder;
    builder.variable(attributes.value(kName).toString())
        .filterOperator(operatorIndex(attributes.value(kOperator).toString()))
        .value(float(attributes.value(kValue).toString().toDouble()));
    m_criteria.append(new LogDataSetFilter(&builder, nullptr));
}

/** A placeholder, which says nothing yet. */
void LogDataDefinitionReader::parseCurveAttribute(QXmlStreamReader &) { }
