#include "workbench/operations/NewCodes.h"

#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <algorithm>

QString NewCodes::next(const TDcVariable &variable)
{
    const QList<ValueLabelElement *> &elements = *variable.getValueLabelElementList();
    qlonglong highest = 0;
    std::for_each(elements.cbegin(), elements.cend(), [&highest](const ValueLabelElement *element) {
        highest = std::max(highest, element->getValue().toLongLong());
    });
    return QString::number(highest + 1);
}
