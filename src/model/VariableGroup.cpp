#include "model/VariableGroup.h"

VariableGroup::VariableGroup(QObject *parent)
    : PropertyWrapper(parent)
{
}
