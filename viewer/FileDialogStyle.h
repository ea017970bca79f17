#ifndef DATALOG_VIEWER_FILEDIALOGSTYLE_H
#define DATALOG_VIEWER_FILEDIALOGSTYLE_H

#include <QObject>

/**
 * Gives Qt's own dialog for files the viewer's colours, and controls for fingers. Desktops have
 * dialogs of their own, which stay as they are.
 */
class FileDialogStyle : public QObject
{
    Q_OBJECT

public:
    explicit FileDialogStyle(QObject *parent = nullptr);

    /** Dresses the dialog that is open. */
    Q_INVOKABLE void apply(bool isDark) const;
};

#endif
