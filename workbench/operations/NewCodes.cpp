#include "workbench/operations/NewCodes.h"

#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <algorithm>
#include <limits>

QString NewCodes::next(const TDcVariable &variable)
{
    const QList<ValueLabelElement *> &elements = *variable.getValueLabelElementList();
    qlonglong highest = 0;
    std::for_each(elements.cbegin(), elements.cend(), [&highest](const ValueLabelElement *element) {
        const qlonglong code = element->getValue().toLongLong();
        if (code < std::numeric_limits<qlonglong>::max()) // Nothing comes after that one.
            highest = std::max(highest, code);
    });
    return QString::number(highest + 1);
}
