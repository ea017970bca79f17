#include "datasource/LogDataSourceItem.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "graphdef/LogDataDefinitionReader.h"
#include "graphdef/LogDataDefinitionWriter.h"
#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "model/Constant.h"
#include "model/LogDataSet.h"
#include "model/Observation.h"
#include "parsing/DataLog.h"
#include "plot/LogViewerItem.h"
#include "support/MetaObjectText.h"
#include "support/TestCompat.h"
#include "table/LogTableViewItem.h"
#include "table/LogTableViewPlottedModel.h"

#include <QFile>

/**
 * What each class tells scripts, compared with a text that is checked in. Scripts on instruments
 * rely on it: a difference here is a change that breaks them.
 */
class tst_FrozenInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesTheText_data();
    void matchesTheText();
};

namespace
{

void addClass(const QMetaObject &type)
{
    QTest::newRow(type.className()) << static_cast<const void *>(&type);
}

} // namespace

Q_DECLARE_METATYPE(const void *)

void tst_FrozenInterface::matchesTheText_data()
{
    QTest::addColumn<const void *>("type");
    addClass(Constant::staticMetaObject);
    addClass(DataLog::staticMetaObject);
    addClass(LogAxisData::staticMetaObject);
    addClass(LogConstTableViewModel::staticMetaObject);
    addClass(LogDataDefinitionReader::staticMetaObject);
    addClass(LogDataDefinitionWriter::staticMetaObject);
    addClass(LogDataFilterBuilderItem::staticMetaObject);
    addClass(LogDataSet::staticMetaObject);
    addClass(LogDataSetFilter::staticMetaObject);
    addClass(LogDataSetFilterListItem::staticMetaObject);
    addClass(LogDataSetListItem::staticMetaObject);
    addClass(LogDataSourceItem::staticMetaObject);
    addClass(LogObservationSortFilterProxyModel::staticMetaObject);
    addClass(LogParser::staticMetaObject);
    addClass(LogTableViewAnalysisModel::staticMetaObject);
    addClass(LogTableViewItem::staticMetaObject);
    addClass(LogTableViewModel::staticMetaObject);
    addClass(LogTableViewPlottedModel::staticMetaObject);
    addClass(LogVariableListItem::staticMetaObject);
    addClass(LogViewerItem::staticMetaObject);
    addClass(Observation::staticMetaObject);
    addClass(PropertyWrapper::staticMetaObject);
    addClass(TabularParser::staticMetaObject);
    addClass(Variable::staticMetaObject);
    addClass(VariableGroup::staticMetaObject);
}

void tst_FrozenInterface::matchesTheText()
{
    QFETCH(const void *, type);
    const QMetaObject &metaObject = *static_cast<const QMetaObject *>(type);
    QFile file(QLatin1String(DATALOG_SOURCE_DIR "/tests/plugin/interfaces/")
               + QLatin1String(metaObject.className()) + QLatin1String(".txt"));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QString actual = MetaObjectText::describe(metaObject);
    const QString expected = QString::fromLatin1(file.readAll());
    const QStringList actualLines = actual.split(QLatin1Char('\n'));
    const QStringList expectedLines = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMax(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(actualLines.value(i), expectedLines.value(i));
}

QTEST_MAIN(tst_FrozenInterface)
#include "tst_FrozenInterface.moc"
