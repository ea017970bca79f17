#include "SavingTest.h"

#include <QXmlStreamReader>

#include <qwt_plot.h>

/** Taking the plot of a window away. */
class tst_PlotSaving : public SavingTest
{
    Q_OBJECT

private slots:
    void init() { open(TemporaryLog::withUnits()); }
    void cleanup() { close(); }
    void suggestsANameBesideTheLog();
    void savesAPicture();
    void savesADrawing();
    void savesADocument();
    void savesTheData();
    void asksBeforeItReplaces();
    void tellsWhatWentWrong();
    void leavesHiddenCurvesOut();
    void leavesTheWindowAsItIs();
    void opensByKeys();
    void fitsASmallWindow();

private:
    /** Pixels of about a colour, for the edges of lines are soft. */
    static int count(const QImage &image, const QColor &color);
};

int tst_PlotSaving::count(const QImage &image, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            found += qAbs(pixel.red() - color.red()) < 60
                && qAbs(pixel.green() - color.green()) < 60
                && qAbs(pixel.blue() - color.blue()) < 60;
        }
    }
    return found;
}

void tst_PlotSaving::suggestsANameBesideTheLog()
{
    openPopup();
    QCOMPARE(text("savePath"), path("test-plot.png"));
    choose(2);
    QCOMPARE(text("savePath"), path("test-plot.pdf"));
    choose(3);
    QCOMPARE(text("savePath"), path("test-data.csv"));
    QVERIFY(!part("saveWidth")->isVisible());
}

void tst_PlotSaving::savesAPicture()
{
    openPopup();
    setSize("saveWidth", 640);
    setSize("saveHeight", 480);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-plot.png"));
    const QImage image(path("test-plot.png"));
    QCOMPARE(image.size(), QSize(640, 480));
    // The left curve's line and name, and the axes.
    QVERIFY(count(image.copy(0, 0, 640, 400), QColor("#D90C00")) > 20);
    QVERIFY(count(image.copy(0, 440, 640, 40), QColor("#D90C00")) > 5);
    QVERIFY(count(image.copy(0, 0, 60, 400), Qt::black) > 50);
    if (qEnvironmentVariableIsSet("DATALOG_SHOTS"))
        image.save(qEnvironmentVariable("DATALOG_SHOTS") + "/saved.png");
}

void tst_PlotSaving::savesADrawing()
{
    openPopup();
    choose(1);
    setPath(path("drawing.svg"));
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("drawing.svg"));
    QFile file(path("drawing.svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("viewBox").toString(), QString("0 0 1280 800"));
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::Characters && !xml.isWhitespace())
            texts.append(xml.text().toString().trimmed());
    }
    QCOMPARE(xml.errorString(), QString());
    // In the legend, and with their units at the axes.
    QCOMPARE(texts.count("T"), 1);
    QCOMPARE(texts.count("T (C)"), 1);
    QCOMPARE(texts.count("CO2"), 1);
    QCOMPARE(texts.count("CO2 (ppm)"), 1);
}

void tst_PlotSaving::savesADocument()
{
    openPopup();
    choose(2);
    setSize("saveWidth", 960);
    setSize("saveHeight", 480);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-plot.pdf"));
    QFile file(path("test-plot.pdf"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("%PDF-"));
    QVERIFY(content.contains("/MediaBox [0 0 720.000000 360.000000]"));
}

void tst_PlotSaving::savesTheData()
{
    m_window->source()->buildFilter(2, 1, "22");
    openPopup();
    choose(3);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-data.csv"));
    QFile file(path("test-data.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 12);
    QCOMPARE(lines.at(0), QByteArray("Obs,T (C),CO2 (ppm)\r"));
    QCOMPARE(lines.at(1), QByteArray("1,,401\r"));
    QCOMPARE(lines.at(2), QByteArray("2,22.5,402\r"));
}

void tst_PlotSaving::asksBeforeItReplaces()
{
    openPopup();
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-plot.png"));
    QFile file(path("test-plot.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    save();
    QCOMPARE(file.size(), 4);
    QCOMPARE(text("save"), QString("Replace it"));
    save();
    QTRY_VERIFY(file.size() > 4);
    QCOMPARE(text("save"), QString("Save"));
}

void tst_PlotSaving::tellsWhatWentWrong()
{
    openPopup();
    setPath(path("missing/plot.png"));
    save();
    QTRY_VERIFY(part("saveProblem")->isVisible());
    QVERIFY(text("saveProblem").startsWith(path("missing/plot.png") + ": can't be written: "));
    setPath(path("plot.gif"));
    m_window->key(Qt::Key_Return);
    QTRY_COMPARE(text("saveProblem"),
                 QString("The name of the file has to end in .png, .svg, .pdf or .csv."));
    QVERIFY(!QFile::exists(path("plot.gif")));
}

void tst_PlotSaving::leavesHiddenCurvesOut()
{
    QVERIFY(m_window->click("chip0"));
    openPopup();
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-plot.png"));
    const QImage image(path("test-plot.png"));
    QCOMPARE(count(image, QColor("#D90C00")), 0);
    QVERIFY(count(image, QColor("#0B7A1E")) > 20);
}

void tst_PlotSaving::leavesTheWindowAsItIs()
{
    const QRectF canvas = m_window->navigator()->canvas();
    openPopup();
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-plot.png"));
    QVERIFY(m_window->click(part("closeSave")));
    QTRY_VERIFY(!popup()->property("visible").toBool());
    QVERIFY(m_window->settle());
    QCOMPARE(m_window->navigator()->canvas(), canvas);
    QVERIFY(!m_window->plot()->plot()->legend());
}

void tst_PlotSaving::opensByKeys()
{
    m_window->item("plotArea")->forceActiveFocus();
    m_window->key(Qt::Key_E, Qt::ControlModifier);
    QTRY_VERIFY(popup()->property("opened").toBool());
    m_window->key(Qt::Key_Escape);
    QTRY_VERIFY(!popup()->property("visible").toBool());
    QVERIFY(m_window->item("plotArea")->hasActiveFocus());
}

void tst_PlotSaving::fitsASmallWindow()
{
    const QSize size(800, 480);
    m_window->window()->resize(size);
    QTRY_COMPARE(m_window->window()->size(), size);
    QVERIFY(m_window->settle());
    openPopup();
    for (const char *name : {"saveKind", "saveWidth", "saveHeight", "savePath", "save"}) {
        const QQuickItem *control = part(name);
        const QRectF area = control->mapRectToScene(QRectF(QPointF(), control->size()));
        QVERIFY2(QRectF(QPointF(), size).contains(area), name);
        QVERIFY2(qMin(area.width(), area.height()) >= 44, name);
    }
    if (qEnvironmentVariableIsSet("DATALOG_SHOTS"))
        m_window->window()->grabWindow().save(qEnvironmentVariable("DATALOG_SHOTS") + "/save.png");
}

QTEST_MAIN(tst_PlotSaving)
#include "tst_PlotSaving.moc"
