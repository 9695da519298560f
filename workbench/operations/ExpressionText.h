#pragma once

#include <QString>

class TDcEntity;
class TDcVariable;
class ValueLabelElement;

/// How an expression writes what it refers to: "PERSON", "PERSON.AGE", the code of a category.
///
/// References are made of the items themselves, never of what a list shows of them, which depends on its
/// mode.
namespace ExpressionText
{
/// The words AND, OR and NOT, in any letter case.
[[nodiscard]] bool isKeyword(QStringView word);

/// \a name as it stands in an expression: in square brackets unless it is a plain word of letters, digits and
/// underscores that is no keyword.
[[nodiscard]] QString name(const QString &name);
[[nodiscard]] QString reference(const TDcEntity &entity);
[[nodiscard]] QString reference(const TDcEntity &entity, const TDcVariable &variable);
/// The code of \a category as a value of \a variable: a number as it is, a text in quotation marks.
[[nodiscard]] QString reference(const TDcVariable &variable, const ValueLabelElement &category);

/// \a piece with the blanks that keep it apart from what stands around \a position in \a text.
[[nodiscard]] QString spaced(const QString &text, qsizetype position, const QString &piece);
} // namespace ExpressionText
