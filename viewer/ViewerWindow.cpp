#include "viewer/ViewerWindow.h"

#include "plugin/DataLogTypes.h"
#include "viewer/BuilderStyle.h"
#include "viewer/CriteriaKeeper.h"
#include "viewer/CriteriaListStyle.h"
#include "viewer/CurveColors.h"
#include "viewer/CurveReadings.h"
#include "viewer/CutCell.h"
#include "viewer/ExcludedRows.h"
#include "viewer/FailureText.h"
#include "viewer/FileDialogStyle.h"
#include "viewer/HorizontalChoice.h"
#include "viewer/LogFollower.h"
#include "viewer/LogLoader.h"
#include "viewer/LogReloader.h"
#include "viewer/LogTroubles.h"
#include "viewer/PlotDescription.h"
#include "viewer/PlotLook.h"
#include "viewer/PlotPad.h"
#include "viewer/PlotSaver.h"
#include "viewer/RecentFiles.h"
#include "viewer/RowJump.h"
#include "viewer/SetupFiles.h"
#include "viewer/TableColumns.h"
#include "viewer/TableSearch.h"
#include "viewer/TableSelection.h"
#include "viewer/TableStyle.h"
#include "viewer/ThemeColors.h"
#include "viewer/VariableTable.h"

#include <QIcon>
#include <QQuickStyle>
#include <QQuickWindow>

namespace
{

const char kUri[] = "DataLogViewer";
const char kPreferences[] = "preferences"; // a property of the engine

template <class T> void registerType(const char *name)
{
    qmlRegisterType<T>(kUri, 1, 0, name);
}

QObject *themeColors(QQmlEngine *, QJSEngine *)
{
    return new ThemeColors;
}

QObject *preferencesOf(QQmlEngine *engine, QJSEngine *)
{
    QObject *preferences = engine->property(kPreferences).value<QObject *>();
    QQmlEngine::setObjectOwnership(preferences, QQmlEngine::CppOwnership);
    return preferences;
}

void registerTypes()
{
    registerDataLogTypes("DataLog");
    registerType<BuilderStyle>("BuilderStyle");
    registerType<CriteriaKeeper>("CriteriaKeeper");
    registerType<CriteriaListStyle>("CriteriaListStyle");
    registerType<CurveReadings>("CurveReadings");
    registerType<CutCell>("CutCell");
    registerType<DataSets>("DataSets");
    registerType<ExcludedRows>("ExcludedRows");
    registerType<FileDialogStyle>("FileDialogStyle");
    registerType<HorizontalChoice>("HorizontalChoice");
    registerType<LogFollower>("LogFollower");
    registerType<LogLoader>("LogLoader");
    registerType<LogReloader>("LogReloader");
    registerType<LogTroubles>("LogTroubles");
    registerType<PlotDescription>("PlotDescription");
    registerType<PlotLook>("PlotLook");
    registerType<PlotNavigator>("PlotNavigator");
    registerType<PlotPad>("PlotPad");
    registerType<PlotSaver>("PlotSaver");
    registerType<RecentFiles>("RecentFiles");
    registerType<RowJump>("RowJump");
    registerType<SetupFiles>("SetupFiles");
    registerType<TableColumns>("TableColumns");
    registerType<TableSearch>("TableSearch");
    registerType<TableSelection>("TableSelection");
    registerType<TableStyle>("TableStyle");
    registerType<VariableTable>("VariableTable");
    qmlRegisterSingletonType<ThemeColors>(kUri, 1, 0, "ThemeColors", &themeColors);
    qmlRegisterSingletonType<Preferences>(kUri, 1, 0, "Preferences", &preferencesOf);
    qmlRegisterUncreatableMetaObject(CurveColors::staticMetaObject, kUri, 1, 0, "CurveColors",
                                     QStringLiteral("CurveColors is a list of numbers"));
    QQuickStyle::setStyle(QStringLiteral("Default"));
}

} // namespace

ViewerWindow::ViewerWindow(const ViewerOptions &options, const QString &preferences)
    : m_setup(options)
    , m_preferences(preferences)
{
    Q_INIT_RESOURCE(viewer);
    static const bool isRegistered = (registerTypes(), true);
    Q_UNUSED(isRegistered)
    // The module is built in. One that is installed would be refused, and the window with it.
    m_engine.addImportPath(QStringLiteral("qrc:/viewer/imports"));
    m_engine.setProperty(kPreferences, QVariant::fromValue<QObject *>(&m_preferences));
    m_engine.setInitialProperties(
        {{QStringLiteral("setup"), QVariant::fromValue<QObject *>(&m_setup)}});
    m_engine.load(QUrl(QStringLiteral("qrc:/viewer/qml/Main.qml")));
    connect(&m_setup, &PlotSetup::usageError, this, &ViewerWindow::usageError);
    connect(&m_setup, &PlotSetup::failed, this, &ViewerWindow::definitionFailed);
    connect(&m_setup, &PlotSetup::remarked, this, &ViewerWindow::remarked);
    if (QQuickWindow *main = window()) {
        auto *loader = main->findChild<LogLoader *>();
        connect(loader, &LogLoader::failed, this, &ViewerWindow::failed);
        connect(loader, &LogLoader::opened, this, &ViewerWindow::opened);
        main->setIcon(QIcon(QStringLiteral(":/viewer/datalog-viewer.svg")));
        m_place.reset(new WindowPlace(main, &m_preferences));
        m_place->show();
        // Instruments have no window manager that would give it the keyboard.
        main->requestActivate();
    }
}

/** Scripts refer to what is in the setup, so they go first. */
ViewerWindow::~ViewerWindow()
{
    if (m_place)
        m_place->keep();
    if (!m_preferences.keep())
        emit remarked(FailureText::ofExport(m_preferences.file(), tr("the settings are lost")));
    qDeleteAll(m_engine.rootObjects());
}

QQuickWindow *ViewerWindow::window() const
{
    return qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
}

void ViewerWindow::open(const QString &path)
{
    QMetaObject::invokeMethod(
        this, [this, path] { window()->findChild<LogLoader *>()->open(path); },
        Qt::QueuedConnection);
}

void ViewerWindow::leaveOutOfRecent(const QString &path)
{
    window()->findChild<RecentFiles *>()->leaveOut(path);
}
