#include "model/Variable.h"

Variable::Variable(QObject *parent)
    : PropertyWrapper(parent)
{
}
