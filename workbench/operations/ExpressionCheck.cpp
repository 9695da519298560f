#include "workbench/operations/ExpressionCheck.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/ExpressionText.h"
#include "workbench/operations/ExpressionTokens.h"
#include "workbench/operations/Places.h"

#include <algorithm>

using ExpressionTokens::Kind;
using ExpressionTokens::Token;

namespace
{
/// All entities that satisfy \a matches. Names should be unique but need not be.
template <typename Matches>
QList<TDcEntity *> entities(TDcEntity *root, Matches matches)
{
    QList<TDcEntity *> found;
    preOrder(root, [&found, &matches](TDcEntity *entity) {
        if (matches(entity))
            found.append(entity);
    });
    return found;
}

bool startsOperand(Kind kind)
{
    return kind == Kind::Reference || kind == Kind::Value || kind == Kind::Not || kind == Kind::Open;
}

/// Reads the tokens from left to right and notes what cannot stand where it stands.
class Reader
{
public:
    Reader(TDcEntity *root, const QString &text) : m_root(root), m_text(text) { }

    QList<ExpressionCheck::Fault> read()
    {
        const QList<Token> tokens = ExpressionTokens::split(m_text);
        for (const Token &token : tokens)
            take(token);
        if (m_wantsOperand && !tokens.isEmpty())
            fault(tokens.last(), ExpressionCheck::tr("A value or a variable is missing at the end."));
        for (const Token &open : std::as_const(m_open))
            fault(open, ExpressionCheck::tr("This parenthesis is never closed."));
        std::stable_sort(m_faults.begin(), m_faults.end(),
                         [](const auto &left, const auto &right) { return left.start < right.start; });
        return m_faults;
    }

private:
    void fault(const Token &token, const QString &message)
    {
        m_faults.append({message, token.start, token.length});
    }

    [[nodiscard]] QString words(const Token &token) const { return m_text.mid(token.start, token.length); }

    void take(const Token &token)
    {
        if (m_wantsOperand && (token.kind == Kind::Infix || token.kind == Kind::Close)) {
            fault(token,
                  ExpressionCheck::tr("A value or a variable is missing before “%1”.").arg(words(token)));
        } else if (!m_wantsOperand && startsOperand(token.kind)) {
            fault(token, ExpressionCheck::tr("An operator is missing before “%1”.").arg(words(token)));
        }
        switch (token.kind) {
        case Kind::Reference:
            checkReference(token);
            m_wantsOperand = false;
            break;
        case Kind::Value:
            m_wantsOperand = false;
            break;
        case Kind::Infix:
        case Kind::Minus:
        case Kind::Not:
            m_wantsOperand = true;
            break;
        case Kind::Open:
            m_open.append(token);
            m_wantsOperand = true;
            break;
        case Kind::Close:
            if (m_open.isEmpty())
                fault(token, ExpressionCheck::tr("This parenthesis was never opened."));
            else
                m_open.removeLast();
            m_wantsOperand = false;
            break;
        case Kind::Unclosed:
            fault(token, ExpressionCheck::tr("“%1” has no end.").arg(words(token).left(1)));
            m_wantsOperand = false;
            break;
        case Kind::Unknown:
            fault(token, ExpressionCheck::tr("“%1” means nothing here.").arg(words(token)));
            break;
        }
    }

    void checkReference(const Token &token)
    {
        const QList<TDcEntity *> named =
            entities(m_root, [&token](const TDcEntity *entity) { return entity->getName() == token.name; });
        if (named.isEmpty() && token.dotted) {
            fault(token, ExpressionCheck::tr("There is no entity “%1”.").arg(token.name));
        } else if (named.isEmpty()) {
            const QList<TDcEntity *> owners = entities(m_root, [&token](const TDcEntity *entity) {
                return Places::findVariable(entity, token.name);
            });
            fault(token,
                  owners.isEmpty()
                      ? ExpressionCheck::tr("There is neither an entity nor a variable “%1”.").arg(token.name)
                      : ExpressionCheck::tr("A variable needs its entity: “%1”.")
                            .arg(ExpressionText::reference(*owners.first()) + u'.'
                                 + ExpressionText::name(token.name)));
        } else if (token.dotted && token.member.isEmpty()) {
            fault(token,
                  ExpressionCheck::tr("The name of a variable is missing after “%1”.").arg(words(token)));
        } else if (token.dotted
                   && std::none_of(named.cbegin(), named.cend(), [&token](const TDcEntity *entity) {
                          return Places::findVariable(entity, token.member);
                      })) {
            fault(token,
                  ExpressionCheck::tr("The entity “%1” has no variable “%2”.").arg(token.name, token.member));
        }
    }

    TDcEntity *m_root; // Not owned.
    const QString &m_text;
    bool m_wantsOperand = true;
    QList<Token> m_open; ///< The parentheses that are open.
    QList<ExpressionCheck::Fault> m_faults;
};
} // namespace

QList<ExpressionCheck::Fault> ExpressionCheck::check(TDcEntity *root, const QString &text)
{
    return Reader(root, text).read();
}
