#ifndef DATALOG_VIEWER_TABLESTYLE_H
#define DATALOG_VIEWER_TABLESTYLE_H

#include "viewer/ViewStyle.h"

/** For the module's table, which takes another row height when it is fitted the next time. */
class TableStyle : public ViewStyle
{
    Q_OBJECT

public:
    explicit TableStyle(QObject *parent = nullptr);

protected:
    void apply() override;
};

#endif
