#pragma once

#include <QString>

/// What a variable's type word stands for. Documents and models spell it differently, and each spelling is
/// compared exactly, as everywhere in the layer.
class TypeWord
{
public:
    enum class Kind { None, Integer, Real, String, Bool, Lookup, Unknown };
    enum class Spelling { Document, Model, Neither };

    explicit TypeWord(const QString &word);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] Spelling spelling() const { return m_spelling; }
    [[nodiscard]] bool isInteger() const { return m_kind == Kind::Integer; }
    [[nodiscard]] bool isText() const { return m_kind == Kind::String; }
    [[nodiscard]] bool isNumber() const { return m_kind == Kind::Integer || m_kind == Kind::Real; }

    /// A known word that differs from \a word in letter case or blanks only; empty when there is none.
    [[nodiscard]] static QString likely(const QString &word);

private:
    Kind m_kind = Kind::Unknown;
    Spelling m_spelling = Spelling::Neither;
};
