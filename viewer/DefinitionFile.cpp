#include "viewer/DefinitionFile.h"

#include "datasource/LogDataSourceItem.h"
#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"
#include "viewer/DefinitionFormat.h"
#include "viewer/FailureText.h"
#include "viewer/SessionJson.h"
#include "viewer/SessionRestorer.h"
#include "viewer/WholeFile.h"
#include "viewer/XmlDefinition.h"

#include <QFileInfo>

namespace
{

const int kMostBytes = 16 * 1024 * 1024; // far more than any definition needs

} // namespace

DefinitionFile::DefinitionFile(const QString &path)
    : m_path(path)
{
}

bool DefinitionFile::read(SessionState *state)
{
    m_errorText.clear();
    m_remarks.clear();
    const DefinitionFormat::Kind kind = DefinitionFormat::ofFile(m_path);
    const QFileInfo file(m_path);
    if (kind == DefinitionFormat::Unknown)
        return fail(FailureText::ofDefinition(
            m_path, tr("the name of a definition ends in %1").arg(DefinitionFormat::suffixes())));
    // Others, such as pipes, may never end, or keep whoever opens them waiting.
    if (!file.isFile() || !file.isReadable())
        return fail(FailureText::ofDefinition(m_path, tr("it can't be opened")));
    if (file.size() > kMostBytes)
        return fail(FailureText::ofDefinition(m_path, tr("it is too large for a definition")));
    return kind == DefinitionFormat::Session ? readSession(state) : readXml(state);
}

bool DefinitionFile::readSession(SessionState *state)
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(FailureText::ofDefinition(m_path, file.errorString()));
    const QByteArray text = file.read(kMostBytes);
    if (file.error() != QFile::NoError)
        return fail(FailureText::ofDefinition(m_path, file.errorString()));
    SessionJson json;
    return json.read(text, state) || fail(FailureText::ofDefinition(m_path, json.errorText()));
}

bool DefinitionFile::readXml(SessionState *state)
{
    XmlDefinition xml;
    if (!xml.read(m_path, state))
        return fail(FailureText::ofDefinition(m_path, xml.errorText()));
    if (XmlDefinition::isEmpty(*state)) {
        *state = SessionState();
        remark({tr("it names no variables and no criteria")});
    }
    return true;
}

void DefinitionFile::apply(const SessionState &state, DataSets *dataSets, LogViewerItem *view)
{
    if (DefinitionFormat::ofFile(m_path) == DefinitionFormat::Xml && state.hasCriteria)
        remark(XmlDefinition::doubts(state));
    SessionRestorer restorer(dataSets, view);
    restorer.apply(state);
    remark(restorer.remarks());
}

bool DefinitionFile::write(DataSets *dataSets, LogViewerItem *view)
{
    m_errorText.clear();
    m_remarks.clear();
    const SessionState state = SessionState::of(dataSets, view);
    switch (DefinitionFormat::ofFile(m_path)) {
    case DefinitionFormat::Session:
        return save(sessionText(state));
    case DefinitionFormat::Xml:
        return save(xmlText(state, dataSets->source()));
    default:
        return fail(FailureText::ofExport(
            m_path, tr("the name of a definition ends in %1").arg(DefinitionFormat::suffixes())));
    }
}

QByteArray DefinitionFile::sessionText(const SessionState &state)
{
    const QByteArray text = SessionJson::text(state);
    if (text.size() <= kMostBytes)
        return text;
    fail(FailureText::ofExport(m_path, tr("it would be too large to be read again")));
    return QByteArray();
}

QByteArray DefinitionFile::xmlText(const SessionState &state, LogDataSourceItem *source)
{
    XmlDefinition xml;
    const QByteArray text = xml.text(source);
    const QStringList losses = xml.losses(state);
    if (text.isEmpty())
        fail(FailureText::ofExport(m_path, xml.errorText()));
    else if (!losses.isEmpty())
        remark({tr("XML does not keep %1. A definition that ends in .json keeps everything.")
                    .arg(losses.join(QStringLiteral("; ")))});
    return text;
}

bool DefinitionFile::save(const QByteArray &text)
{
    if (text.isEmpty())
        return false;
    QString error;
    if (WholeFile::write(m_path, text, &error))
        return true;
    m_remarks.clear();
    return fail(FailureText::ofExport(m_path, error));
}

bool DefinitionFile::fail(const QString &text)
{
    m_errorText = text;
    return false;
}

void DefinitionFile::remark(const QStringList &texts)
{
    for (const QString &text : texts)
        m_remarks.append(FailureText::ofRemark(m_path, text));
}
