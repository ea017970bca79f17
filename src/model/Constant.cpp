#include "model/Constant.h"

Constant::Constant(QObject *parent)
    : PropertyWrapper(parent)
{
}
