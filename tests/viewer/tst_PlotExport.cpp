#include "viewer/PlotExport.h"

#include "TemporaryLog.h"
#include "plot/LogViewerItem.h"
#include "support/FullDisk.h"

#include <QXmlStreamReader>
#include <QtTest>

#include <qwt_plot.h>

class tst_PlotExport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void drawsAtTheSize_data();
    void drawsAtTheSize();
    void drawsLegendAndAxes();
    void lendsALegendToOneWithout();
    void drawsTheSameTwice();
    void writesPng();
    void writesSvg();
    void writesPdf();
    void refusesOtherFormats();
    void keepsTheOldFileWhenItFails();
    void keepsTheOldFileWithoutSpace_data();
    void keepsTheOldFileWithoutSpace();

private:
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogViewerItem> m_view;
};

namespace
{

int count(const QImage &image, const QColor &color, const QRect &area)
{
    int found = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            found += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}

} // namespace

void tst_PlotExport::init()
{
    m_log.reset(new TemporaryLog);
    m_source.reset(new LogDataSourceItem);
    m_view.reset(new LogViewerItem);
    m_view->setDataSource(m_source.data());
    m_source->setLogFilePath(m_log->path());
    m_source->selectDataSet(0);
    m_view->setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("T");
}

void tst_PlotExport::cleanup()
{
    m_view.reset();
    m_source.reset();
    m_log.reset();
}

void tst_PlotExport::drawsAtTheSize_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("small") << QSize(100, 100);
    QTest::newRow("wide") << QSize(1000, 200);
    QTest::newRow("large") << QSize(3000, 2000);
}

void tst_PlotExport::drawsAtTheSize()
{
    QFETCH(QSize, size);
    QCOMPARE(PlotExport(m_view.data(), size).image().size(), size);
}

void tst_PlotExport::drawsLegendAndAxes()
{
    const QImage image = PlotExport(m_view.data(), QSize(600, 400)).image();
    const QColor red("#D90C00");
    QVERIFY(count(image, red, QRect(0, 0, 600, 300)) > 20); // the curve
    QVERIFY(count(image, red, QRect(0, 360, 600, 40)) > 20); // its mark in the legend
    QVERIFY(count(image, Qt::black, QRect(0, 0, 60, 330)) > 50); // the left axis
    QCOMPARE(image.pixelColor(599, 0), QColor(Qt::white));
}

/** One without the frames of what can be tapped, and gone afterwards. */
void tst_PlotExport::lendsALegendToOneWithout()
{
    const QRect below(0, 360, 600, 40);
    const QImage framed = PlotExport(m_view.data(), QSize(600, 400)).image();
    m_view->plot()->insertLegend(nullptr);
    const QImage image = PlotExport(m_view.data(), QSize(600, 400)).image();
    QVERIFY(count(image, QColor("#D90C00"), below) > 20);
    QVERIFY(count(image, Qt::white, below) > count(framed, Qt::white, below) + 20);
    QVERIFY(!m_view->plot()->legend());
}

void tst_PlotExport::drawsTheSameTwice()
{
    const QImage image = PlotExport(m_view.data(), QSize(600, 400)).image();
    PlotExport(m_view.data(), QSize(800, 300)).image();
    QCOMPARE(PlotExport(m_view.data(), QSize(600, 400)).image(), image);
}

void tst_PlotExport::writesPng()
{
    PlotExport plot(m_view.data(), QSize(600, 400));
    const QString path = m_log->directory() + "/plot.png";
    QVERIFY2(plot.write(path), qPrintable(plot.errorText()));
    QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32), plot.image());
}

void tst_PlotExport::writesSvg()
{
    PlotExport plot(m_view.data(), QSize(600, 400));
    const QString path = m_log->directory() + "/plot.svg";
    QVERIFY2(plot.write(path), qPrintable(plot.errorText()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("viewBox").toString(), QString("0 0 600 400"));
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::Characters && !xml.isWhitespace())
            texts.append(xml.text().toString().trimmed());
    }
    QCOMPARE(xml.errorString(), QString());
    QVERIFY(texts.contains("Obs"));
    QCOMPARE(texts.count("T"), 2); // in the legend and at the axis
}

void tst_PlotExport::writesPdf()
{
    PlotExport plot(m_view.data(), QSize(960, 480));
    const QString path = m_log->directory() + "/plot.pdf";
    QVERIFY2(plot.write(path), qPrintable(plot.errorText()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("%PDF-"));
    QVERIFY(content.contains("/MediaBox [0 0 720.000000 360.000000]")); // points, 72 an inch
}

void tst_PlotExport::refusesOtherFormats()
{
    PlotExport plot(m_view.data(), QSize(600, 400));
    const QString path = m_log->directory() + "/plot.gif";
    QVERIFY(!plot.write(path));
    QCOMPARE(plot.errorText(), QString("the plot can't be drawn into it"));
    QVERIFY(!QFile::exists(path));
}

void tst_PlotExport::keepsTheOldFileWhenItFails()
{
    const QString path = m_log->directory() + "/plot.gif";
    QFile old(path);
    QVERIFY(old.open(QIODevice::ReadWrite));
    old.write("old");
    old.close();
    QVERIFY(!PlotExport(m_view.data(), QSize(600, 400)).write(path));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

void tst_PlotExport::keepsTheOldFileWithoutSpace_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("png") << "plot.png";
    QTest::newRow("svg") << "plot.svg";
    QTest::newRow("pdf") << "plot.pdf";
}

void tst_PlotExport::keepsTheOldFileWithoutSpace()
{
    QFETCH(QString, name);
    QFile old(m_log->directory() + '/' + name);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    PlotExport plot(m_view.data(), QSize(600, 400));
    {
        const FullDisk disk(100);
        QVERIFY(!plot.write(old.fileName()));
    }
    QVERIFY(!plot.errorText().isEmpty());
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

QTEST_MAIN(tst_PlotExport)
#include "tst_PlotExport.moc"
