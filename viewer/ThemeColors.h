#ifndef DATALOG_VIEWER_THEMECOLORS_H
#define DATALOG_VIEWER_THEMECOLORS_H

#include <QColor>
#include <QObject>
#include <QVariantMap>

/** The viewer's colours by their names, for scripts and for the style sheets of widgets. */
class ThemeColors : public QObject
{
    Q_OBJECT

public:
    explicit ThemeColors(QObject *parent = nullptr);

    /** Each colour by its name. */
    Q_INVOKABLE QVariantMap all(bool isDark) const;
    /**
     * A curve's colour as it is drawn: the plot's own reds and greens can hardly be told from each
     * other, and on a dark page the dark ones would not be seen.
     * @param isOfInstrument whether the plot's own are kept, as the instrument shows them; only on
     *     a light page.
     */
    Q_INVOKABLE QColor curve(const QColor &color, bool isDark, bool isOfInstrument) const;

    static QColor color(const char *name, bool isDark);
    static QColor ofCurve(const QColor &color, bool isDark, bool isOfInstrument = false);
    /** A style sheet in which names between percent signs became colours. */
    static QString filled(const char *styleSheet, bool isDark);
};

#endif
