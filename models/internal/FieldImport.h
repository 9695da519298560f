#pragma once

#include "model/OwnedList.h"

class QJsonObject;
class QString;
class QVariant;
class TDcVariable;
class ValueLabelElement;

/// What a dragged source field says about the variable that it becomes.
namespace FieldImport
{
/// Makes \a variable, a new one, what \a field describes. A missing key reads as an empty text or 0. The tag
/// is left alone: it depends on what else there is.
///
/// The field's name is parted at \a splitter into name and alias; an empty splitter parts nothing.
void read(TDcVariable &variable, const QJsonObject &field, const QString &splitter);

/// Appends the value labels of \a categories, one category or a list of them, to \a elements.
void readCategories(const QVariant &categories, OwnedList<ValueLabelElement> &elements);
} // namespace FieldImport
