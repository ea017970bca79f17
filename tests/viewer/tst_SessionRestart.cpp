#include "viewer/ViewerWindow.h"

#include "PlottedLog.h"
#include "plot/LogViewerItem.h"
#include "support/TestCompat.h"
#include "viewer/CurveReadings.h"
#include "viewer/DefinitionFile.h"
#include "viewer/PlotCurves.h"
#include "viewer/PlotExport.h"
#include "viewer/SetupFiles.h"

#include <QApplication>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

/** A session saved, the viewer restarted and the session applied: nobody sees a difference. */
class tst_SessionRestart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void showsTheSame_data();
    void showsTheSame();
    void exportsTheSame();

private:
    void start();
    void check(QStandardItemModel *model, int row, bool on = true);
    void arrangeEverything();
    void arrangeColors();
    void arrangeNothingChecked();
    void arrangeSingleScale();
    void arrangeHiddenPieces();
    void arrangeAutoscaleAgain();
    void criterion(const char *name, int operatorIndex, float value, bool isActive);
    void exclude(int row);
    void hide(const char *name);
    QImage picture();
    QString difference(const QImage &seen, const QImage &expected) const;
    QStringList table() const;
    QStringList criteria() const;
    QByteArray save(const QString &name);
    void apply(const QString &name);
    QString path(const QString &name) const { return m_log->directory() + '/' + name; }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerWindow> m_viewer;
    LogDataSourceItem *m_source = nullptr;
    LogViewerItem *m_view = nullptr;
    DataSets *m_dataSets = nullptr;
};

struct Arrangement {
    void (tst_SessionRestart::*arrange)();
};
Q_DECLARE_METATYPE(Arrangement)

namespace
{

const int kSettledGrabs = 5;
const int kGrabInterval = 20; // ms
// Where a glyph lies in the scene's atlas depends on which glyphs came before it, and rounds its
// edges: up to 3 of 255 were seen between two windows of the same look.
const int kGlyphRounding = 4;
const char kOdd[] = "CO₂ | ppm, \"dry\"";

/** A first data set of other variables, then one with names that are alike and odd. */
QByteArray logText()
{
    QByteArray text = "[Header]\nCreated\t2020-01-01\n[Data]\nSys\tSys\tAir\nObs\tTime\tT\n"
                      "-\t-\tC\n1\t10:00:00\t1.5\n2\t10:00:01\t2.5\n"
                      "[Header]\nCreated\t2020-01-02\n[Data]\n"
                      "Sys\tSys\tAir\tAir\tGas\tGas\tAir\tAir\n"
                      "Obs\tTime\tT\tT\t";
    text += QByteArray(kOdd) + "\tÜ\tRH\tP\n-\t-\tC\tC\tppm\t-\t%\tkPa\n";
    for (int i = 0; i < 60; ++i) {
        text
            += QByteArray::number(i + 1) + "\t11:00:" + (i < 10 ? "0" : "") + QByteArray::number(i);
        for (int column = 0; column < 6; ++column)
            text += '\t' + QByteArray::number(5 + column + (i * (column + 3)) % 17 / 7.0, 'g', 7);
        text += '\n';
    }
    return text;
}

int channelDistance(QRgb a, QRgb b)
{
    return qMax(qAbs(qRed(a) - qRed(b)),
                qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
}

enum Column { Obs, Time, FirstT, SecondT, Odd, Umlaut, RH, P };

} // namespace

void tst_SessionRestart::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_SessionRestart::init()
{
    m_viewer.reset();
    m_log.reset(new TemporaryLog(logText()));
    start();
}

void tst_SessionRestart::start()
{
    m_viewer.reset();
    m_viewer.reset(new ViewerWindow(ViewerOptions()));
    QVERIFY(m_viewer->window());
    QVERIFY(QTest::qWaitForWindowExposed(m_viewer->window()));
    QSignalSpy opened(m_viewer.data(), SIGNAL(opened()));
    m_viewer->open(m_log->path());
    QVERIFY(waitForCount(opened, 1));
    m_source = m_viewer->window()->findChild<LogDataSourceItem *>("dataSource");
    m_view = m_viewer->window()->findChild<LogViewerItem *>("plot");
    m_dataSets = m_viewer->window()->findChild<DataSets *>();
}

// What a user may have done

void tst_SessionRestart::check(QStandardItemModel *model, int row, bool on)
{
    model->item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

void tst_SessionRestart::criterion(const char *name, int operatorIndex, float value, bool isActive)
{
    LogDataSetFilter::Builder builder;
    builder.variable(QString::fromUtf8(name)).filterOperator(operatorIndex).value(value);
    m_source->addFilter(new LogDataSetFilter(&builder, nullptr));
    m_source->updateCriteriaSelection(m_source->activeFilterModel()->rowCount() - 1, isActive);
}

void tst_SessionRestart::exclude(int row)
{
    LogTableViewModel *table = m_source->tableModel();
    table->setData(table->index(row, 0), Qt::Checked, Qt::CheckStateRole);
}

/** As a tap on the curve's chip does it. */
void tst_SessionRestart::hide(const char *name)
{
    const QList<PlotCurve> curves = PlotCurves::of(*m_view->plot());
    for (int row = 0; row < curves.size(); ++row) {
        if (curves.at(row).name == name)
            m_viewer->window()->findChild<CurveReadings *>("readings")->toggle(row);
    }
}

void tst_SessionRestart::arrangeEverything()
{
    m_dataSets->choose(1);
    check(m_source->xVariableModel(), Obs);
    check(m_source->yVariableModel(), RH);
    check(m_source->yVariableModel(), Odd);
    check(m_source->zVariableModel(), Umlaut);
    m_view->setSymbolsEnabled(LogViewerItem::LeftAxis, true);
    m_source->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    m_source->setObservationRange(45);
    m_source->setObservationFrequency(2);
    criterion(kOdd, 1, 7.1234567f, true);
    criterion("RH", 2, 9.3f, false);
    criterion("RH", 5, 10.0f, true);
    criterion("\xc3\x9c", 3, 9.7f, true);
    for (int row : {17, 19, 20, 21, 59})
        exclude(row);
    m_view->setAxisScale(LogViewerItem::LeftAxis, 6.000123456789, 11.98765432101);
    m_view->setAxisScale(LogViewerItem::BottomAxis, 20.00000001, 48.3);
    m_view->replot();
}

/** Colours tell in which order variables came and went. */
void tst_SessionRestart::arrangeColors()
{
    m_dataSets->choose(1);
    for (int row : {P, RH, SecondT, Odd})
        check(m_source->yVariableModel(), row);
    check(m_source->yVariableModel(), P, false);
    check(m_source->yVariableModel(), FirstT, false);
    check(m_source->zVariableModel(), Umlaut);
    check(m_source->zVariableModel(), P);
}

void tst_SessionRestart::arrangeNothingChecked()
{
    for (QStandardItemModel *model :
         {m_source->xVariableModel(), m_source->yVariableModel(), m_source->zVariableModel()}) {
        for (int row = 0; row < model->rowCount(); ++row)
            check(model, row, false);
    }
    m_view->setLinesEnabled(LogViewerItem::RightAxis, false);
}

void tst_SessionRestart::arrangeSingleScale()
{
    m_view->setAxisScale(LogViewerItem::LeftAxis, 2, 2);
    m_view->setAxisScale(LogViewerItem::BottomAxis, 2, 1);
    m_view->replot();
}

void tst_SessionRestart::arrangeHiddenPieces()
{
    m_dataSets->choose(1);
    check(m_source->yVariableModel(), RH);
    criterion("RH", 1, 11.5f, true);
    hide("RH");
}

void tst_SessionRestart::arrangeAutoscaleAgain()
{
    m_dataSets->choose(1);
    m_view->setAxisScale(LogViewerItem::LeftAxis, 2, 3);
    m_view->enableAutoScale(LogViewerItem::LeftAxis);
    m_view->enableAutoScale(LogViewerItem::BottomAxis);
    m_view->setAxisScale(LogViewerItem::BottomAxis, 0.1, 70.7);
    m_view->replot();
}

// What can be seen of it

/** The plot and what is beside and below it and tells of it; once it has settled. */
QImage tst_SessionRestart::picture()
{
    // The pointer may be anywhere when the window comes.
    auto *readings = m_viewer->window()->findChild<CurveReadings *>("readings");
    readings->clearCursor();
    QImage image = m_viewer->window()->grabWindow();
    for (int same = 0; same < kSettledGrabs;) {
        QTest::qWait(kGrabInterval);
        readings->clearCursor();
        const QImage next = m_viewer->window()->grabWindow();
        same = next == image ? same + 1 : 0;
        image = next;
    }
    const int top = qRound(m_view->mapToScene(QPointF()).y() * image.devicePixelRatio());
    return image.copy(0, top, image.width(), image.height() - top);
}

/** Where the two differ, or an empty text: in the plot by any pixel, around it by what is seen. */
QString tst_SessionRestart::difference(const QImage &seen, const QImage &expected) const
{
    if (seen.size() != expected.size())
        return "another size";
    const qreal ratio = seen.devicePixelRatio();
    const QRect plot(qRound(m_view->mapToScene(QPointF()).x() * ratio), 0,
                     qRound(m_view->width() * ratio), qRound(m_view->height() * ratio));
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const int allowed = plot.contains(x, y) ? 0 : kGlyphRounding;
            if (channelDistance(seen.pixel(x, y), expected.pixel(x, y)) > allowed)
                return QString("pixel %1, %2").arg(x).arg(y);
        }
    }
    return QString();
}

QStringList tst_SessionRestart::table() const
{
    QStringList rows;
    const QAbstractItemModel *model = m_source->observationFilteredTableModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells(model->index(row, 0).data(Qt::CheckStateRole).toString());
        for (int column = 1; column < model->columnCount(); ++column)
            cells << model->index(row, column).data().toString();
        rows << cells.join('|');
    }
    return rows;
}

QStringList tst_SessionRestart::criteria() const
{
    QStringList rows;
    for (int row = 0; row < m_source->activeFilterModel()->rowCount(); ++row) {
        const QStandardItem *item = m_source->activeFilterModel()->item(row);
        rows << item->text() + ' ' + QString::number(item->checkState());
    }
    return rows;
}

QByteArray tst_SessionRestart::save(const QString &name)
{
    auto *files = m_viewer->window()->findChild<SetupFiles *>("setupFiles");
    if (!files->save(QUrl::fromLocalFile(path(name))) || !files->isGood())
        return QByteArray();
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_SessionRestart::apply(const QString &name)
{
    auto *files = m_viewer->window()->findChild<SetupFiles *>("setupFiles");
    QVERIFY2(files->apply(QUrl::fromLocalFile(path(name))), qPrintable(files->notice()));
    QVERIFY2(files->isGood(), qPrintable(files->notice()));
    files->dismiss();
}

void tst_SessionRestart::showsTheSame_data()
{
    QTest::addColumn<Arrangement>("arrangement");

    QTest::newRow("everything") << Arrangement{&tst_SessionRestart::arrangeEverything};
    QTest::newRow("colors") << Arrangement{&tst_SessionRestart::arrangeColors};
    QTest::newRow("nothing checked") << Arrangement{&tst_SessionRestart::arrangeNothingChecked};
    QTest::newRow("single value and turned scale")
        << Arrangement{&tst_SessionRestart::arrangeSingleScale};
    QTest::newRow("hidden pieces") << Arrangement{&tst_SessionRestart::arrangeHiddenPieces};
    QTest::newRow("autoscale again") << Arrangement{&tst_SessionRestart::arrangeAutoscaleAgain};
}

void tst_SessionRestart::showsTheSame()
{
    QFETCH(Arrangement, arrangement);
    const QImage asStarted = picture();
    (this->*arrangement.arrange)();
    const QByteArray session = save("a.json");
    QVERIFY(!session.isEmpty());
    m_viewer->window()->findChild<SetupFiles *>("setupFiles")->dismiss();
    const QImage before = picture();
    const QStringList rows = table();
    const QStringList tests = criteria();
    QVERIFY(!difference(before, asStarted).isEmpty());

    start();
    QCOMPARE(difference(picture(), asStarted), QString());
    apply("a.json");
    QCOMPARE(difference(picture(), before), QString());
    QCOMPARE(table(), rows);
    QCOMPARE(criteria(), tests);
    QCOMPARE(save("b.json"), session);

    // Once more, over what is there.
    (this->*arrangement.arrange)();
    apply("a.json");
    QCOMPARE(difference(picture(), before), QString());
    QCOMPARE(table(), rows);
    QCOMPARE(criteria(), tests);
    QCOMPARE(save("c.json"), session);
}

/** A program that starts anew draws what is drawn here. */
void tst_SessionRestart::exportsTheSame()
{
    const QSize size(900, 500);
    PlottedLog log(logText());
    m_source = &log.source;
    m_view = &log.view;
    m_dataSets = &log.dataSets;
    m_view->setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_view->setLinesEnabled(LogViewerItem::RightAxis, true);
    arrangeEverything();
    DefinitionFile definition(path("a.json"));
    QVERIFY(definition.write(m_dataSets, m_view));
    log.look.setHasLegend(false);
    QVERIFY(PlotExport(m_view, size).write(path("here.png")));

    QProcess viewer;
    viewer.start(DATALOG_VIEWER,
                 {m_log->path(), "--definition", path("a.json"), "--export", path("process.png"),
                  "--size", QString("%1x%2").arg(size.width()).arg(size.height())});
    QVERIFY(viewer.waitForFinished(60000));
    QCOMPARE(viewer.readAllStandardError(), QByteArray());
    QCOMPARE(viewer.exitCode(), 0);
    QCOMPARE(QImage(path("process.png")), QImage(path("here.png")));
}

QTEST_MAIN(tst_SessionRestart)
#include "tst_SessionRestart.moc"
