#ifndef DATALOG_MODEL_VARIABLE_H
#define DATALOG_MODEL_VARIABLE_H

#include "model/PropertyWrapper.h"

/** A column of a log, by name. */
class Variable : public PropertyWrapper
{
    Q_OBJECT

public:
    explicit Variable(QObject *parent = nullptr);
};

#endif
