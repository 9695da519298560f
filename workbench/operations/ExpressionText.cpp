#include "workbench/operations/ExpressionText.h"

#include "common/Constants.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
bool isPlain(const QString &name)
{
    const auto inWord = [](QChar character) { return character.isLetterOrNumber() || character == u'_'; };
    return !name.isEmpty() && !name.front().isDigit() && std::all_of(name.cbegin(), name.cend(), inWord);
}

bool isNumber(const QString &text)
{
    bool number = false;
    (void)text.toDouble(&number);
    return number && (text.back().isDigit());
}
} // namespace

bool ExpressionText::isKeyword(QStringView word)
{
    const auto matches = [word](QLatin1StringView keyword) {
        return word.compare(keyword, Qt::CaseInsensitive) == 0;
    };
    return matches("AND"_L1) || matches("OR"_L1) || matches("NOT"_L1);
}

QString ExpressionText::name(const QString &name)
{
    return isPlain(name) && !isKeyword(name) ? name : u'[' + name + u']';
}

QString ExpressionText::reference(const TDcEntity &entity)
{
    return name(entity.getName());
}

QString ExpressionText::reference(const TDcEntity &entity, const TDcVariable &variable)
{
    return name(entity.getName()) + u'.' + name(variable.getName());
}

QString ExpressionText::reference(const TDcVariable &variable, const ValueLabelElement &category)
{
    QString code = category.getValue().trimmed();
    // Documents and the program spell type words in different letter case.
    const bool text = variable.getVarType().compare(Constants::typeString, Qt::CaseInsensitive) == 0;
    if (!text && isNumber(code))
        return code;
    return u'"' + code.replace(u'"', u"\"\""_s) + u'"';
}

QString ExpressionText::spaced(const QString &text, qsizetype position, const QString &piece)
{
    const QChar before = position > 0 ? text.at(position - 1) : QChar();
    const QChar after = position < text.size() ? text.at(position) : QChar();
    const bool blankBefore = !before.isNull() && !before.isSpace() && before != u'(' && piece != ")"_L1;
    const bool blankAfter = !after.isNull() && !after.isSpace() && after != u')' && piece != "("_L1;
    return (blankBefore ? u" "_s : QString()) + piece + (blankAfter ? u" "_s : QString());
}
