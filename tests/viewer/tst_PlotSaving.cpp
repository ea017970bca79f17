#include "PlotWindow.h"

#include <QXmlStreamReader>

#include <qwt_plot.h>

#include <algorithm>
#include <functional>

namespace
{

const int kManyRows = 60000;

} // namespace

/** Taking the plot of a window away. */
class tst_PlotSaving : public QObject
{
    Q_OBJECT

public slots:
    void noteProgress() { m_seen.append(part("saveProgress")->property("value").toDouble()); }

private slots:
    void init();
    void cleanup();
    void suggestsANameBesideTheLog();
    void savesAPicture();
    void savesADrawing();
    void savesADocument();
    void savesTheData();
    void asksBeforeItReplaces();
    void tellsWhatWentWrong();
    void leavesHiddenCurvesOut();
    void leavesTheWindowAsItIs();
    void staysAliveWhileItSaves_data();
    void staysAliveWhileItSaves();
    void savesAllOfTheData();
    void savesWhatWasShown();
    void cancelsSaving_data();
    void cancelsSaving();
    void closesOnceAllIsSaved_data();
    void closesOnceAllIsSaved();
    void givesUpWhenClosedAgain_data();
    void givesUpWhenClosedAgain();
    void staysOpenWithoutTheFile();
    void opensByKeys();
    void fitsASmallWindow();

private:
    QString path(const char *name) const { return m_log->directory() + '/' + name; }
    QObject *popup() const { return m_window->window()->findChild<QObject *>("savePopup"); }
    QQuickItem *part(const char *name) const { return popup()->findChild<QQuickItem *>(name); }
    QString text(const char *name) const { return part(name)->property("text").toString(); }
    void openPopup();
    void choose(int kind);
    void setPath(const QString &path);
    void setSize(const char *spinBox, int pixels);
    void save();
    /** A log that takes a while to be saved in any way, and the popup about to save it so. */
    void openLarge(int kind);
    /** Does something as soon as saving is under way. */
    void onceSaving(const std::function<void()> &action);
    /** Pixels of about a colour, for the edges of lines are soft. */
    static int count(const QImage &image, const QColor &color);

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
    QVector<double> m_seen; ///< of the progress
};

void tst_PlotSaving::init()
{
    m_log.reset(new TemporaryLog(TemporaryLog::withUnits()));
    m_window.reset(new PlotWindow);
    QVERIFY(m_window->open(m_log->path()));
}

void tst_PlotSaving::cleanup()
{
    m_window.reset();
    m_log.reset();
}

void tst_PlotSaving::openPopup()
{
    QVERIFY(m_window->click("saveAs"));
    QTRY_VERIFY(popup()->property("opened").toBool());
}

/** By keys: down from the first one. */
void tst_PlotSaving::choose(int kind)
{
    part("saveKind")->forceActiveFocus();
    m_window->key(Qt::Key_Home);
    for (int i = 0; i < kind; ++i)
        m_window->key(Qt::Key_Down);
    QCOMPARE(part("saveKind")->property("currentIndex").toInt(), kind);
}

void tst_PlotSaving::setPath(const QString &path)
{
    QVERIFY(m_window->click(part("savePath")));
    QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
    m_window->type(path);
}

void tst_PlotSaving::setSize(const char *spinBox, int pixels)
{
    QVERIFY(m_window->click(part(spinBox)));
    QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
    m_window->type(QString::number(pixels));
    m_window->key(Qt::Key_Return);
    QCOMPARE(part(spinBox)->property("value").toInt(), pixels);
}

void tst_PlotSaving::save()
{
    QVERIFY(m_window->settle());
    QVERIFY(m_window->click(part("save")));
}

void tst_PlotSaving::openLarge(int kind)
{
    QByteArray rows;
    for (int i = 1; i <= kManyRows; ++i)
        rows += QByteArray::number(i) + "\t11:00:00\t" + QByteArray::number(i * 7919LL % 1009)
            + '\t' + QByteArray::number(i * 104729LL % 997) + '\n';
    ViewerOptions options;
    options.x = "CO2";
    options.left << "T"
                 << "Obs";
    options.style = ViewerOptions::Both;
    m_window.reset(new PlotWindow(options));
    m_log.reset(new TemporaryLog("[Header]\nCreated\t2020\n[Data]\nS\tS\tA\tA\nObs\tTime\tCO2\tT\n"
                                 "\ths\tppm\tC\n"
                                 + rows));
    QVERIFY(m_window->open(m_log->path()));
    openPopup();
    choose(kind);
    if (kind > 0)
        return;
    setSize("saveWidth", 5000);
    setSize("saveHeight", 5000);
}

void tst_PlotSaving::onceSaving(const std::function<void()> &action)
{
    auto *timer = new QTimer(m_window->window());
    connect(timer, &QTimer::timeout, this, [this, timer, action] {
        if (!popup()->property("isSaving").toBool())
            return;
        timer->stop();
        action();
    });
    timer->start(0);
}

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

void tst_PlotSaving::staysAliveWhileItSaves_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");

    QTest::newRow("png") << 0 << "test-plot.png";
    QTest::newRow("svg") << 1 << "test-plot.svg";
    QTest::newRow("pdf") << 2 << "test-plot.pdf";
    QTest::newRow("csv") << 3 << "test-data.csv";
}

void tst_PlotSaving::staysAliveWhileItSaves()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    openLarge(kind);
    connect(part("saveProgress"), SIGNAL(valueChanged()), this, SLOT(noteProgress()));
    m_seen.clear();
    int events = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &events] {
        events += popup()->property("isSaving").toBool() && !part("savePath")->isEnabled()
            && !part("saveWidth")->isEnabled();
    });
    timer.start(0);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + m_log->directory() + '/' + name);
    QVERIFY2(events > 2, qPrintable(QString::number(events)));
    QVERIFY(!m_seen.isEmpty());
    QVERIFY(std::is_sorted(m_seen.constBegin(), m_seen.constEnd()));
    QVERIFY(m_seen.last() <= 1);
    QVERIFY(!popup()->property("isSaving").toBool());
    QVERIFY(!part("saveProgress")->isVisible());
    QVERIFY(part("saveKind")->isEnabled());
    QCOMPARE(text("closeSave"), QString("Close"));
}

void tst_PlotSaving::savesAllOfTheData()
{
    openLarge(3);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-data.csv"));
    QFile file(path("test-data.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), kManyRows + 1);
}

/** Whatever becomes of the plot while its picture is drawn. */
void tst_PlotSaving::savesWhatWasShown()
{
    openLarge(1);
    setPath(path("before.svg"));
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("before.svg"));
    setPath(path("meanwhile.svg"));
    onceSaving([this] {
        m_window->source()->setLeftVariable("Obs");
        m_window->plot()->setAxisScale(LogViewerItem::BottomAxis, 0, 1);
        m_window->plot()->replot();
    });
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("meanwhile.svg"));
    QCOMPARE(m_window->plot()->axisMaxScale(LogViewerItem::BottomAxis), 1.0);
    QFile before(path("before.svg"));
    QFile meanwhile(path("meanwhile.svg"));
    QVERIFY(before.open(QIODevice::ReadOnly) && meanwhile.open(QIODevice::ReadOnly));
    QVERIFY(before.size() > 0);
    QVERIFY(before.readAll() == meanwhile.readAll());
}

void tst_PlotSaving::cancelsSaving_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isByKey");

    QTest::newRow("png by a click") << 0 << "test-plot.png" << false;
    QTest::newRow("svg by Escape") << 1 << "test-plot.svg" << true;
    QTest::newRow("pdf by a click") << 2 << "test-plot.pdf" << false;
    QTest::newRow("csv by a click") << 3 << "test-data.csv" << false;
}

void tst_PlotSaving::cancelsSaving()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(bool, isByKey);
    openLarge(kind);
    QFile file(m_log->directory() + '/' + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    save();
    QCOMPARE(text("save"), QString("Replace it"));
    onceSaving([this, isByKey] {
        QCOMPARE(text("closeSave"), QString("Cancel"));
        if (isByKey)
            m_window->key(Qt::Key_Escape);
        else
            QVERIFY(m_window->click(part("closeSave")));
    });
    save();
    QTRY_COMPARE(text("saveProblem"),
                 QString("Saving was cancelled, the file is as it was before."));
    QVERIFY(popup()->property("visible").toBool());
    QCOMPARE(file.size(), 4);
    QCOMPARE(QDir(m_log->directory()).entryList(QDir::Files).size(), 2);
    // And once more, to the end.
    save();
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + file.fileName());
    QVERIFY(file.size() > kManyRows);
}

void tst_PlotSaving::closesOnceAllIsSaved_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("end");

    QTest::newRow("svg") << 1 << "test-plot.svg" << QByteArray("</svg>");
    QTest::newRow("csv") << 3 << "test-data.csv" << QByteArray("\r");
}

void tst_PlotSaving::closesOnceAllIsSaved()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(QByteArray, end);
    openLarge(kind);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->window()->isVisible());
        QVERIFY(part("saveLeaving")->isVisible());
    });
    save();
    QTRY_VERIFY(!m_window->window()->isVisible());
    QFile file(m_log->directory() + '/' + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray content = file.readAll();
    content.chop(1); // the end of the last line
    QVERIFY(content.size() > kManyRows);
    QVERIFY(content.endsWith(end));
}

void tst_PlotSaving::givesUpWhenClosedAgain_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("pdf") << 2;
    QTest::newRow("csv") << 3;
}

void tst_PlotSaving::givesUpWhenClosedAgain()
{
    QFETCH(int, kind);
    openLarge(kind);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->window()->close());
    });
    save();
    QTRY_VERIFY(!m_window->window()->isVisible());
    QTRY_VERIFY(!popup()->property("isSaving").toBool());
    QCOMPARE(QDir(m_log->directory()).entryList(QDir::Files), QStringList{"test.log"});
}

/** Who cancels then may want to save it in another way. */
void tst_PlotSaving::staysOpenWithoutTheFile()
{
    openLarge(3);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->click(part("closeSave")));
    });
    save();
    QTRY_COMPARE(text("saveProblem"),
                 QString("Saving was cancelled, the file is as it was before."));
    QVERIFY(m_window->window()->isVisible());
    QVERIFY(!part("saveLeaving")->isVisible());
    QVERIFY(m_window->window()->close());
    QVERIFY(!m_window->window()->isVisible());
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
